#include "quillgrid/grid/Navigator.h"

#include "quillgrid/grid/CellRules.h"

#include <algorithm>

namespace quillgrid {

void Navigator::NextCell() {
    if (state_.CurrentRow < state_.RowCount()) {
        selector_.Select(state_.CurrentRow + 1);
    } else if (MayWrap()) {
        selector_.Select(1);
    }
}

void Navigator::PreviousCell() {
    if (state_.CurrentRow > 1) {
        selector_.Select(state_.CurrentRow - 1);
    } else if (MayWrap()) {
        selector_.Select(state_.RowCount());
    }
}

bool Navigator::MayWrap() {
    const auto cell = state_.Current;
    if (!cell || commit_.CommitInPlace() != CommitResult::Done) return false;
    if (state_.Settings.AllowWrap) return true;
    events_.LeaveFocus(*cell);
    return false;
}

bool Navigator::NextByTab(bool backwards) {
    const std::int32_t step = backwards ? -1 : 1;
    if (state_.Tab == TabPolicy::Leave) return commit_.CommitInPlace() != CommitResult::Done;
    const std::int32_t row = CellBeyond(state_.CurrentRow, step);
    if (row > 0) {
        selector_.Select(row);
        return true;
    }
    if (state_.Tab == TabPolicy::LeaveAtEnds) return !CommitBeforeLeaving();
    if (MayWrap()) selector_.Select(CellBeyond(backwards ? state_.RowCount() + 1 : 0, step));
    return true;
}

bool Navigator::CommitBeforeLeaving() {
    const auto cell = state_.Current;
    if (!cell) return true;
    if (commit_.CommitInPlace() != CommitResult::Done) return false;
    if (!state_.Settings.AllowWrap) events_.LeaveFocus(*cell);
    return !state_.Terminated;
}

std::int32_t Navigator::CellBeyond(std::int32_t row, std::int32_t step) const {
    for (row += step; row >= 1 && row <= state_.RowCount(); row += step) {
        if (!IsHeading(*state_.RowCell(row))) return row;
    }
    return 0;
}

void Navigator::ByPages(std::int32_t pages) {
    const std::int32_t rows = pages * std::max(state_.Layout.VisibleRows, 1);
    selector_.Select(std::clamp(state_.CurrentRow + rows, 1, std::max(state_.RowCount(), 1)));
}

std::int32_t Navigator::CurrentAfterScroll(std::int32_t first) const {
    const std::int32_t last = std::min(first + std::max(state_.Layout.VisibleRows, 1) - 1, state_.RowCount());
    return std::clamp(state_.CurrentRow, std::min(first, last), last);
}

void Navigator::ScrollTo(std::int32_t firstVisibleRow) {
    const std::int32_t first = state_.LimitedFirstVisible(firstVisibleRow);
    if (first == state_.FirstVisible || state_.RowCount() == 0) return view_.ShowFrom(first);
    if (state_.UserMode && CurrentAfterScroll(first) != state_.CurrentRow) {
        if (commit_.Commit() != CommitResult::Done) return view_.ShowFrom(state_.FirstVisible);
    }
    view_.ShowFrom(first);
    if (state_.UserMode) {
        selector_.MakeCurrent(CurrentAfterScroll(state_.FirstVisible));
    } else {
        seat_.Seat();
    }
}

} // namespace quillgrid
