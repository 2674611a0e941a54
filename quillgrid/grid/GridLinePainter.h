#pragma once

#include "quillgrid/grid/GridState.h"
#include "quillgrid/platform/Canvas.h"

#include <cstdint>

namespace quillgrid {

/// Paints the lines of the property list and what lies below its last row.
class GridLinePainter {
public:
    GridLinePainter(const GridState& state, Canvas& canvas) : state_(state), canvas_(canvas) {}

    /// The lines above and below rows `first` to `last`, and those that go down the whole content.
    void Paint(std::int32_t first, std::int32_t last);

private:
    void PaintFrameLines();
    void PaintContentLines();
    void PaintBelowRows();
    void Horizontal(std::int32_t y);
    void Vertical(std::int32_t x);

    const GridState& state_;
    Canvas& canvas_;
};

} // namespace quillgrid
