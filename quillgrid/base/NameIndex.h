#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace quillgrid {

/// Finds the rows of a constant table by their `Name` without regard to case, by halving. The names are
/// ASCII; the index is made by the compiler.
template <std::size_t Count>
class NameIndex {
public:
    template <typename Row>
    constexpr explicit NameIndex(const std::array<Row, Count>& table) {
        for (std::size_t row = 0; row < Count; ++row)
            entries_[row] = {table[row].Name, row};
        std::sort(entries_.begin(), entries_.end(),
                  [](const Entry& left, const Entry& right) { return Compare(left.Name, right.Name) < 0; });
    }

    /// 0-based place in the table.
    constexpr std::optional<std::size_t> Find(std::string_view name) const {
        const auto found = std::lower_bound(
            entries_.begin(), entries_.end(), name,
            [](const Entry& entry, std::string_view wanted) { return Compare(entry.Name, wanted) < 0; });
        if (found == entries_.end() || Compare(found->Name, name) != 0) return std::nullopt;
        return found->Row;
    }

    constexpr bool AllDifferent() const {
        return std::adjacent_find(entries_.begin(), entries_.end(),
                                  [](const Entry& left, const Entry& right) {
                                      return Compare(left.Name, right.Name) == 0;
                                  }) == entries_.end();
    }

private:
    struct Entry {
        std::string_view Name;
        std::size_t Row = 0;
    };

    static constexpr char Fold(char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    }
    static constexpr int Compare(std::string_view left, std::string_view right) {
        for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i) {
            const int difference = Fold(left[i]) - Fold(right[i]);
            if (difference != 0) return difference;
        }
        return left.size() < right.size() ? -1 : left.size() > right.size() ? 1 : 0;
    }

    std::array<Entry, Count> entries_{};
};

} // namespace quillgrid
