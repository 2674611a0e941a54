#pragma once

#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/RepaintRequests.h"
#include "quillgrid/platform/ScrollBar.h"

namespace quillgrid {

/// Which rows are in view, and the scroll bar beside them. Changes neither cells nor the current row.
class Viewport {
public:
    Viewport(GridState& state, ScrollBar& bar, RepaintRequests& repaint)
        : state_(state), bar_(bar), repaint_(repaint) {}

    /// The row becomes the first in view, as far as the rows below it fill the view.
    void ShowFrom(std::int32_t row);
    /// Scrolls no further than needed to bring the row into view.
    void Reveal(std::int32_t row);
    /// Range, place and value of the bar as the layout has them.
    void UpdateBar();

private:
    void EnableArrows();

    GridState& state_;
    ScrollBar& bar_;
    RepaintRequests& repaint_;
};

} // namespace quillgrid
