#include "quillgrid/grid/GridLinePainter.h"

#include <algorithm>

namespace quillgrid {

void GridLinePainter::Paint(std::int32_t first, std::int32_t last) {
    const GridLayout& layout = state_.Layout;
    PaintFrameLines();
    for (std::int32_t row = first; row <= last + 1; ++row) {
        const std::int32_t y = layout.Content.Top + (row - state_.FirstVisible) * layout.RowPitch;
        if (y > layout.Content.Top && y < layout.Content.Bottom) Horizontal(y);
    }
    PaintContentLines();
    Vertical(std::max(layout.Labels.Left, layout.Values.Left) - 1);
    PaintBelowRows();
}

/// A raised frame gets a line along its inside at the left and the top.
void GridLinePainter::PaintFrameLines() {
    const std::int32_t border = state_.Settings.BorderStyle;
    if (border != qgbsRaised && border != qgbsRaisedLight) return;
    const Rect& frame = state_.Layout.Frame;
    const Colour colour = state_.Colours.Grid;
    canvas_.Line({frame.Left + 1, frame.Top + 1}, {frame.Right - 2, frame.Top + 1}, colour);
    canvas_.Line({frame.Left + 1, frame.Top + 1}, {frame.Left + 1, frame.Bottom - 2}, colour);
}

/// Where a margin keeps the rows away from the frame a line closes the table.
void GridLinePainter::PaintContentLines() {
    const Rect& content = state_.Layout.Content;
    const Margins& style = state_.Layout.StyleMargin;
    if (style.Top > 0 || style.Bottom > 0) {
        Horizontal(content.Top);
        Horizontal(content.Bottom - 1);
    }
    if (style.Left > 0 || style.Right > 0) {
        Vertical(content.Left - (style.Left > 0 ? 1 : 0));
        Vertical(content.Right - (style.Right > 0 ? 0 : 1));
    }
}

void GridLinePainter::PaintBelowRows() {
    Rect rest = state_.Layout.Content;
    const std::int32_t rows = std::max(state_.LastVisible() - state_.FirstVisible + 1, 0);
    rest.Top += rows * state_.Layout.RowPitch + (rows > 0 ? 1 : 0);
    if (!rest.IsEmpty()) canvas_.Fill(rest, state_.Colours.LabelBackground);
}

void GridLinePainter::Horizontal(std::int32_t y) {
    const Rect& content = state_.Layout.Content;
    canvas_.Line({content.Left, y}, {content.Right, y}, state_.Colours.Grid);
}

void GridLinePainter::Vertical(std::int32_t x) {
    const Rect& content = state_.Layout.Content;
    canvas_.Line({x, content.Top}, {x, content.Bottom}, state_.Colours.Grid);
}

} // namespace quillgrid
