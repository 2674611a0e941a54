#include "quillgrid/grid/RowSelector.h"

#include "quillgrid/grid/CellRules.h"

namespace quillgrid {

bool RowSelector::Select(std::int32_t row) {
    if (state_.Terminated || !state_.UserMode || state_.RowCount() == 0) return false;
    const auto target = state_.RowCell(row < 1 || row > state_.RowCount() ? 1 : row);
    if (target != state_.Current) {
        if (commit_.Commit() == CommitResult::Cancelled || state_.Terminated) return false;
    }
    // Handlers may have moved, hidden or removed the row.
    const std::int32_t present = state_.RowOf(*target);
    return present > 0 && MakeCurrent(present);
}

bool RowSelector::MakeCurrent(std::int32_t row) {
    const auto cell = state_.RowCell(row);
    const bool another = cell != state_.Current;
    if (another) {
        pads_.Hide(); // no pad outlives its cell
        repaint_.Row(state_.CurrentRow);
    }
    view_.Reveal(row);
    state_.Current = cell;
    state_.CurrentRow = row;
    if (IsHeading(*cell)) state_.CurrentGroup = cell->Group();
    if (another) {
        repaint_.Row(row);
        repaint_.Tips();
    }
    seat_.Seat();
    seat_.KeepFocus();
    if (another) events_.SelChange(*cell);
    return state_.IsCurrent(*cell);
}

} // namespace quillgrid
