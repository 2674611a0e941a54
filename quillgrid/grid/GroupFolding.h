#pragma once

#include "quillgrid/cells/Groups.h"
#include "quillgrid/grid/GridRefresh.h"
#include "quillgrid/grid/GridState.h"

namespace quillgrid {

/// Expands and collapses groups at the user's wish.
class GroupFolding {
public:
    GroupFolding(GridState& state, const Groups& groups, GridRefresh& refresher)
        : state_(state), groups_(groups), refresher_(refresher) {}

    /// Neither does anything for a cell that heads no group.
    void Toggle(const Cell& heading);
    void SetExpanded(const Cell& heading, bool expanded);

private:
    void Change(Group& group, bool expanded);

    GridState& state_;
    const Groups& groups_;
    GridRefresh& refresher_;
};

} // namespace quillgrid
