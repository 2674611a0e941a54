#include "quillgrid/grid/DisplayOrder.h"

#include "quillgrid/base/Text.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_map>

namespace quillgrid {

namespace {

/// A cell on its way into the order.
struct Entry {
    std::shared_ptr<Cell> Item;
    std::string SortKey; ///< empty unless sorting
};
using Entries = std::vector<Entry>;

struct KeyHash {
    std::size_t operator()(std::string_view key) const { return HashIgnoreCase(key); }
};
struct KeyEqual {
    bool operator()(std::string_view left, std::string_view right) const {
        return EqualIgnoreCase(left, right);
    }
};
using Members = std::unordered_map<std::string, Entries, KeyHash, KeyEqual>;

bool IsGroupHeading(const Cell& cell) {
    return cell.Template() == qgctGroup;
}

/// The caption and the position in five digits, so that equal captions keep the order of adding.
std::string SortKeyOf(const Cell& cell, std::size_t position) {
    std::string digits = std::to_string(position);
    if (digits.size() < 5) digits.insert(0, 5 - digits.size(), '0');
    return cell.Caption() + digits;
}

Entries AllEntries(const Cells& cells, bool sorted, const Locale& locale) {
    Entries entries;
    entries.reserve(cells.Size());
    std::size_t position = 0;
    for (const auto& cell : cells.All())
        entries.push_back({cell, sorted ? SortKeyOf(*cell, ++position) : std::string()});
    if (sorted) {
        std::stable_sort(entries.begin(), entries.end(), [&](const Entry& left, const Entry& right) {
            return locale.Compare(left.SortKey, right.SortKey) < 0;
        });
    }
    return entries;
}

class Ordering {
public:
    Ordering(const Groups& groups, const GridSettings& settings) : groups_(groups), settings_(settings) {}

    std::vector<std::shared_ptr<Cell>> Grouped(const Entries& entries) {
        for (const Entry& entry : entries)
            Sort(entry);
        Append(ungrouped_);
        for (const Entry& heading : headings_)
            AppendGroup(*heading.Item, heading);
        for (const Entry& entry : entries)
            AppendOrphan(entry);
        return std::move(rows_);
    }

    std::vector<std::shared_ptr<Cell>> WithoutHeadings(const Entries& entries) {
        for (const Entry& entry : entries) {
            if (!IsGroupHeading(*entry.Item)) Append(entry);
        }
        return std::move(rows_);
    }

private:
    void Sort(const Entry& entry) {
        if (IsGroupHeading(*entry.Item)) {
            headings_.push_back(entry);
            members_.try_emplace(entry.Item->Group()); // known from now on: its cells are no orphans
        } else if (entry.Item->Group().empty()) {
            ungrouped_.push_back(entry);
        } else {
            members_[entry.Item->Group()].push_back(entry);
        }
    }

    void AppendGroup(const Cell& heading, const Entry& entry) {
        const auto members = members_.find(heading.Group());
        if (members == members_.end()) return Append(entry);
        const Entries own = std::exchange(members->second, {}); // a second heading of a group repeats nothing
        if (!IsShown(heading, settings_.UserLevel)) return;
        Append(entry);
        const auto group = groups_.Find(heading.Group());
        if (!group || group->Expanded()) Append(own);
    }

    void AppendOrphan(const Entry& entry) {
        if (IsGroupHeading(*entry.Item) || entry.Item->Group().empty()) return;
        const auto members = members_.find(entry.Item->Group());
        if (members == members_.end() || members->second.empty()) return;
        if (members->second.front().Item != entry.Item) return;
        Append(std::exchange(members->second, {}));
    }

    void Append(const Entries& entries) {
        for (const Entry& entry : entries)
            Append(entry);
    }

    void Append(const Entry& entry) {
        if (IsShown(*entry.Item, settings_.UserLevel)) rows_.push_back(entry.Item);
    }

    const Groups& groups_;
    const GridSettings& settings_;
    Entries ungrouped_;
    Entries headings_;
    Members members_;
    std::vector<std::shared_ptr<Cell>> rows_;
};

/// Neither sorted nor grouped: the usual form.
std::vector<std::shared_ptr<Cell>> ShownCells(const Cells& cells, const GridSettings& settings) {
    std::vector<std::shared_ptr<Cell>> rows;
    rows.reserve(cells.Size());
    for (const auto& cell : cells.All()) {
        if (IsShown(*cell, settings.UserLevel)) rows.push_back(cell);
    }
    return rows;
}

} // namespace

bool IsShown(const Cell& cell, std::int32_t userLevel) {
    return cell.Visible() && userLevel >= cell.UserlevelVisible();
}

std::vector<std::shared_ptr<Cell>> DisplayOrder(const Cells& cells, const Groups& groups,
                                                const GridSettings& settings, const Locale& locale) {
    if (!settings.Sorted && !(settings.Grouped && groups.Count() > 0)) return ShownCells(cells, settings);
    const Entries entries = AllEntries(cells, settings.Sorted, locale);
    Ordering ordering(groups, settings);
    return settings.Grouped && groups.Count() > 0 ? ordering.Grouped(entries)
                                                  : ordering.WithoutHeadings(entries);
}

} // namespace quillgrid
