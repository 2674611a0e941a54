#pragma once

#include "quillgrid/cells/Cell.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/ValueLayout.h"
#include "quillgrid/platform/Canvas.h"
#include "quillgrid/platform/ImageSource.h"

namespace quillgrid {

/// Paints single rows: reads the state, writes to the canvas.
class RowPainter {
public:
    RowPainter(const GridState& state, const ImageSource* images, Canvas& canvas, const Rect& clip)
        : state_(state), images_(images), canvas_(canvas), clip_(clip) {}

    void PaintValue(const Cell& cell, std::int32_t row);
    void PaintLabel(const Cell& cell, std::int32_t row);
    /// The sign beside a group heading that says whether the group is expanded.
    void PaintGroupGlyph(std::int32_t row, bool expanded);

private:
    Rect Background(Rect area, std::int32_t row, bool leftSide) const;
    void PaintDecoration(const ValueLayout& parts, const Cell& cell);
    void PaintButton(const Cell& cell, std::int32_t row, const Rect& strip);
    void PaintText(const Cell& cell, const Rect& area);
    void PaintPercent(const Cell& cell, const Rect& value, bool plain);
    Rect PercentArea(const Rect& value) const;

    const GridState& state_;
    const ImageSource* images_;
    Canvas& canvas_;
    Rect clip_;
};

/// The part that both rectangles share; empty when there is none.
Rect Intersection(const Rect& left, const Rect& right);

} // namespace quillgrid
