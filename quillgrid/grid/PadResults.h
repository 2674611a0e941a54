#pragma once

#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/OpenPads.h"
#include "quillgrid/grid/RepaintRequests.h"

#include <memory>

namespace quillgrid {

/// What the three pads have in common when they open and when the user is done with them.
class PadResults {
public:
    PadResults(GridState& state, OpenPads& pads, EditSeat& seat, GridEvents& events, RepaintRequests& repaint)
        : State(state), Pads(pads), seat_(seat), events_(events), repaint_(repaint) {}

    /// The cell that takes a result; null when it must not be changed, or is no longer the current one.
    std::shared_ptr<Cell> Target() const;
    /// The edit box shows what the cell holds now.
    void Show(const Cell& cell);
    /// The pads close, and Change is raised: always, or only when the cell holds another value than when the
    /// pad opened.
    void Close(bool always);
    /// Whether the user's level is below one of the cell's.
    bool IsLocked(const Cell& cell) const;
    /// Shows the pad with its right edge at the cell's, below it.
    void ShowBelow(PadWindow& window);
    void Repaint() { repaint_.All(); }

    GridState& State;
    OpenPads& Pads;

private:
    EditSeat& seat_;
    GridEvents& events_;
    RepaintRequests& repaint_;
};

} // namespace quillgrid
