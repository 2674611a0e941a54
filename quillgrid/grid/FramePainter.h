#pragma once

#include "quillgrid/grid/GridState.h"
#include "quillgrid/platform/Canvas.h"

namespace quillgrid {

/// Paints what stands around the rows: backgrounds, edges, caption bar and tips box.
class FramePainter {
public:
    FramePainter(const GridState& state, Canvas& canvas) : state_(state), canvas_(canvas) {}

    void PaintBackground();
    void PaintCaptionBar();
    void PaintEdges();
    /// Caption and tooltip of the current cell.
    void PaintTips();

private:
    void PaintBox(const Rect& box, Glyph glyph, MousePart::Kind kind);
    void PaintGroupCaption();
    Rect StyledContent() const;

    const GridState& state_;
    Canvas& canvas_;
};

} // namespace quillgrid
