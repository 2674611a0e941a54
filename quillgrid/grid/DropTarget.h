#pragma once

#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/RowSelector.h"
#include "quillgrid/grid/ValueStepper.h"

#include <string_view>

namespace quillgrid {

/// Takes what is dropped on a cell as if it had been typed.
class DropTarget {
public:
    DropTarget(GridState& state, RowSelector& selector, CellCommit& commit, ValueStepper& stepper,
               EditSeat& seat)
        : state_(state), selector_(selector), commit_(commit), stepper_(stepper), seat_(seat) {}

    /// Whether the cell under the point would take something.
    bool Takes(Point position) const;
    /// Makes the cell current and gives it the text. False when the user must stay elsewhere or the cell may
    /// not be changed.
    bool Drop(Point position, std::string_view text);

private:
    std::shared_ptr<Cell> CellAt(Point position) const;
    bool Take(const Cell& cell, std::string_view text);

    GridState& state_;
    RowSelector& selector_;
    CellCommit& commit_;
    ValueStepper& stepper_;
    EditSeat& seat_;
};

} // namespace quillgrid
