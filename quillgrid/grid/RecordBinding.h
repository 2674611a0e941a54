#pragma once

#include "quillgrid/cells/Cells.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/RepaintRequests.h"
#include "quillgrid/platform/Record.h"

namespace quillgrid {

/// Fills cells from records. Records are not user input: Null empties a cell whatever its rules say.
class RecordBinding {
public:
    RecordBinding(GridState& state, const Cells& cells, EditSeat& seat, RepaintRequests& repaint)
        : state_(state), cells_(cells), seat_(seat), repaint_(repaint) {}

    /// Every cell with a key takes the field of that name; others keep their value. Silent ends.
    void LoadRecord(const Record& record);
    /// Every cell takes its default and counts as unchanged. Silent ends.
    void AddNew();

private:
    void ShowNewValues();

    GridState& state_;
    const Cells& cells_;
    EditSeat& seat_;
    RepaintRequests& repaint_;
};

} // namespace quillgrid
