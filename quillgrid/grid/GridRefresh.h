#pragma once

#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/grid/AccessKeys.h"
#include "quillgrid/grid/CaptionWidths.h"
#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/OpenPads.h"
#include "quillgrid/grid/RepaintRequests.h"
#include "quillgrid/grid/SampleCells.h"
#include "quillgrid/grid/Viewport.h"

namespace quillgrid {

/// Brings rows, layout, scroll bar and edit box in line with cells and settings, and asks for a repaint.
class GridRefresh {
public:
    GridRefresh(GridState& state, const GridPorts& ports, const Cells& cells, const Groups& groups,
                SampleCells& samples, AccessKeys& keys, CellCommit& commit, EditSeat& seat, OpenPads& pads,
                Viewport& view, RepaintRequests& repaint)
        : state_(state),
          ports_(ports),
          cells_(cells),
          groups_(groups),
          samples_(samples),
          keys_(keys),
          widths_(ports.Metrics),
          commit_(commit),
          seat_(seat),
          pads_(pads),
          view_(view),
          repaint_(repaint) {}

    /// A call within a call does nothing. Ends Silent.
    void Refresh();
    /// The surface may have another size: lays out if so.
    void Resize();

private:
    void LoadSamples();
    void Sort();
    void SetCurrent(const std::shared_ptr<Cell>& kept);
    void LayOut();
    Size LaidOutSize() const;
    void EnforceMinimum(Size size);
    LayoutMeasures Measure();
    void PlaceRows();

    GridState& state_;
    const GridPorts& ports_;
    const Cells& cells_;
    const Groups& groups_;
    SampleCells& samples_;
    AccessKeys& keys_;
    CaptionWidths widths_;
    CellCommit& commit_;
    EditSeat& seat_;
    OpenPads& pads_;
    Viewport& view_;
    RepaintRequests& repaint_;
};

} // namespace quillgrid
