#pragma once

#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Columns.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/cells/PersistentCells.h"
#include "quillgrid/grid/GridState.h"

namespace quillgrid {

/// The cells that a control shows while it has none of the host's: always at design time; at run time until
/// the host adds its first, which makes those disappear that the host has not touched.
class SampleCells {
public:
    SampleCells(GridState& state, Cells& cells, Groups& groups, Columns& columns)
        : state_(state), cells_(cells), groups_(groups), columns_(columns) {}

    /// Forgets the records but for a first one.
    void StartAnew();
    /// Replaces all cells and groups by `CellCount` (1 at least) sample cells.
    void Load();
    /// A cell of the host is about to be added.
    void MakeRoom();
    void Clear() { records_.Clear(); }

private:
    void AddFrom(const PersistentCell& record);

    GridState& state_;
    Cells& cells_;
    Groups& groups_;
    Columns& columns_;
    PersistentCells records_;
    bool loading_ = false;
    bool shown_ = false;
};

} // namespace quillgrid
