#pragma once

#include "quillgrid/grid/CellEditor.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/RowSelector.h"
#include "quillgrid/platform/ImageSource.h"

namespace quillgrid {

/// What the mouse does.
class MouseController {
public:
    MouseController(const GridState& state, RowSelector& selector, CellEditor& editor, GridEvents& events,
                    const ImageSource* images)
        : state_(state), selector_(selector), editor_(editor), events_(events), images_(images) {}

    /// Selects the row; on the image of a value toggles a boolean or raises ImageClick.
    void Press(Point position);
    /// In the edit box: as F4.
    void DoubleClick();

private:
    bool IsOnImage(const Cell& cell, std::int32_t row, Point position) const;

    const GridState& state_;
    RowSelector& selector_;
    CellEditor& editor_;
    GridEvents& events_;
    const ImageSource* images_;
};

} // namespace quillgrid
