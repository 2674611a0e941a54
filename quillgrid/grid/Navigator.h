#pragma once

#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/RowSelector.h"

namespace quillgrid {

/// Moves the current row by the keyboard and the view by scroll bar and wheel.
class Navigator {
public:
    Navigator(GridState& state, CellCommit& commit, RowSelector& selector, Viewport& view, EditSeat& seat,
              GridEvents& events)
        : state_(state), commit_(commit), selector_(selector), view_(view), seat_(seat), events_(events) {}

    /// At the last row commits, then wraps to the first, or raises LeaveFocus when AllowWrap is false.
    void NextCell();
    /// The mirror image.
    void PreviousCell();
    /// To the next cell that is no heading, as the tab policy has it. False: the value is committed, and the
    /// focus may go on to another control.
    bool NextByTab(bool backwards);
    void FirstRow() { selector_.Select(1); }
    void LastRow() { selector_.Select(state_.RowCount()); }
    /// Positive: down. Stops at the ends.
    void ByPages(std::int32_t pages);

    /// Scrolls; a current row that leaves the view is committed and gives way to the nearest one in view.
    /// Nothing scrolls when that commit is cancelled.
    void ScrollTo(std::int32_t firstVisibleRow);

private:
    /// Commits at an end; the rows may be others afterwards.
    bool MayWrap();
    std::int32_t CellBeyond(std::int32_t row, std::int32_t step) const;
    std::int32_t CurrentAfterScroll(std::int32_t first) const;
    bool CommitBeforeLeaving();

    GridState& state_;
    CellCommit& commit_;
    RowSelector& selector_;
    Viewport& view_;
    EditSeat& seat_;
    GridEvents& events_;
};

} // namespace quillgrid
