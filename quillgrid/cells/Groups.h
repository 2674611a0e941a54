#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/KeyedList.h"
#include "quillgrid/cells/Group.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/PositionIterator.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quillgrid {

class CellOwner;
class Cells;

struct GroupArguments {
    std::string Key{};     ///< "Group" and a number when empty
    std::string Caption{}; ///< the key when empty
    bool Expanded = true;
    std::string TooltipText{};
};

/// The groups of a control.
class QUILLGRID_EXPORT Groups {
public:
    using Pointer = std::shared_ptr<Group>;
    using Iterator = PositionIterator<Groups, Group>;

    /// Heading rows go into `cells`, which outlives the groups.
    Groups(CellOwner* owner, Cells& cells) : owner_(owner), cells_(cells) {}
    Groups(const Groups&) = delete;
    Groups& operator=(const Groups&) = delete;

    /// Adds a group and its heading row, and makes it the group that later cells join. A key that is taken is
    /// error 20093; nothing is added then.
    Pointer Add(GroupArguments arguments = {});
    /// Error 20092 when there is none.
    Pointer Item(ItemKey which) const;
    /// The group or nothing.
    Pointer Find(ItemKey which) const { return FindItem(list_, which); }
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    /// Removes a group if there is one and returns the new count. Its cells and its heading row stay.
    std::int32_t Remove(ItemKey which);
    void Clear();

    Pointer At(std::size_t position) const { return list_.At(position); }
    std::size_t Size() const { return list_.Count(); }
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

    /// Null before the control goes.
    void SetOwner(CellOwner* owner) { owner_ = owner; }

private:
    void AddHeading(const Group& group);
    void SetCurrentGroup(const std::string& key);
    std::string CurrentGroup() const;

    KeyedList<Group> list_;
    CellOwner* owner_;
    Cells& cells_;
};

} // namespace quillgrid
