#pragma once

#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/OpenPads.h"
#include "quillgrid/grid/RepaintRequests.h"
#include "quillgrid/grid/Viewport.h"

namespace quillgrid {

/// Makes rows current.
class RowSelector {
public:
    RowSelector(GridState& state, CellCommit& commit, EditSeat& seat, Viewport& view, OpenPads& pads,
                GridEvents& events, RepaintRequests& repaint)
        : state_(state),
          commit_(commit),
          seat_(seat),
          view_(view),
          pads_(pads),
          events_(events),
          repaint_(repaint) {}

    /// Commits the current cell and makes the row (1 when there is no such row) current, in view and under
    /// the edit box. False when the user must stay, or when a handler took the row away.
    bool Select(std::int32_t row);
    /// The same without a commit.
    bool MakeCurrent(std::int32_t row);

private:
    GridState& state_;
    CellCommit& commit_;
    EditSeat& seat_;
    Viewport& view_;
    OpenPads& pads_;
    GridEvents& events_;
    RepaintRequests& repaint_;
};

} // namespace quillgrid
