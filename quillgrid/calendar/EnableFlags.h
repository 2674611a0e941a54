#pragma once

#include <bitset>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace quillgrid {

/// Which of a preset's rules an enable string switches on: character n speaks for rule n, "1" is on, a
/// missing one is on too, surplus ones speak for nothing.
class EnableFlags {
public:
    static constexpr std::size_t MostRules = 30;

    explicit EnableFlags(std::string_view text);

    /// `position` counts from 1.
    bool IsOn(std::size_t position) const { return on_[position - 1]; }

private:
    std::bitset<MostRules> on_;
};

/// The first `size` characters of an enable string, with "1" for those that are missing.
std::vector<std::string_view> EnableCharacters(std::string_view text, std::size_t size);

} // namespace quillgrid
