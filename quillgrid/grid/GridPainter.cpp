#include "quillgrid/grid/GridPainter.h"

#include "quillgrid/grid/RowPainter.h"

#include <algorithm>
#include <optional>

namespace quillgrid {

namespace {

/// Border and bevels share their first six numbers and the edges that these mean.
std::optional<EdgeKind> EdgeFor(std::int32_t style) {
    switch (style) {
    case qgbsFlat: return EdgeKind::Flat;
    case qgbsSunken: return EdgeKind::Sunken;
    case qgbsRaised: return EdgeKind::Raised;
    case qgbsSunkenLight: return EdgeKind::SunkenOuter;
    case qgbsRaisedLight: return EdgeKind::RaisedInner;
    default: return std::nullopt;
    }
}

void PaintEdge(Canvas& canvas, const Rect& area, std::int32_t style) {
    if (const auto kind = EdgeFor(style)) canvas.Edge(area, *kind);
}

/// The two lines that set a panel or a dialog's left part off from what stands beside it.
void PaintPanelLines(Canvas& canvas, const Rect& control, BevelOuterConstants bevel) {
    const auto line = [&](std::int32_t x, Colour colour) {
        canvas.Line({x, control.Top}, {x, control.Bottom}, colour);
    };
    switch (bevel) {
    case qgboPanelLeft:
        line(control.Right - 2, ColourButtonShadow);
        line(control.Right - 1, ColourDarkShadow);
        break;
    case qgboPanelRight:
        line(0, ColourButtonFace);
        line(1, ColourButtonHighlight);
        break;
    case qgboDialogLeft:
        line(control.Right - 2, ColourButtonShadow);
        line(control.Right - 1, ColourButtonHighlight);
        break;
    default: break;
    }
}

} // namespace

void GridPainter::Paint(Canvas& canvas, const Rect& dirty) {
    if (busy_ || state_.Terminated) return;
    const FlagGuard busy(busy_);
    const RowRange rows = RowsIn(dirty);
    canvas.SetClip(dirty);
    PaintFrame(canvas);
    if (state_.Layout.PropertyList) {
        PaintGrid(canvas, rows);
        PaintBelowRows(canvas);
    }
    const Rect clip = Intersection(dirty, state_.Layout.Content);
    if (!clip.IsEmpty()) PaintRows(canvas, clip, rows);
    canvas.ClearClip();
}

GridPainter::RowRange GridPainter::RowsIn(const Rect& area) const {
    const Rect part = Intersection(area, state_.Layout.Content);
    if (part.IsEmpty()) return {};
    const std::int32_t top = state_.Layout.Content.Top;
    const std::int32_t pitch = state_.Layout.RowPitch;
    return {state_.FirstVisible + (part.Top - top) / pitch,
            std::min(state_.FirstVisible + (part.Bottom - 1 - top) / pitch, state_.LastVisible())};
}

void GridPainter::PaintFrame(Canvas& canvas) const {
    const GridLayout& layout = state_.Layout;
    const Margins& style = layout.StyleMargin;
    canvas.Fill(layout.Control, state_.Colours.Background);
    if (layout.PropertyList) {
        canvas.Fill({layout.Content.Left - style.Left, layout.Content.Top - style.Top,
                     layout.Content.Right + style.Right, layout.Content.Bottom + style.Bottom},
                    state_.Colours.CellBackground);
    }
    PaintBevels(canvas);
}

void GridPainter::PaintBevels(Canvas& canvas) const {
    const GridSettings& settings = state_.Settings;
    PaintEdge(canvas, state_.Layout.Control, settings.BevelOuter);
    PaintPanelLines(canvas, state_.Layout.Control, settings.BevelOuter);
    if (settings.BevelInner == qgbiGroupFrame) {
        canvas.Edge(state_.Layout.InnerBevel, EdgeKind::Etched);
    } else {
        PaintEdge(canvas, state_.Layout.InnerBevel, settings.BevelInner);
    }
    PaintEdge(canvas, state_.Layout.Frame, settings.BorderStyle);
}

void GridPainter::PaintGrid(Canvas& canvas, RowRange rows) const {
    const GridLayout& layout = state_.Layout;
    const Colour colour = state_.Colours.Grid;
    for (std::int32_t row = rows.First; row <= rows.Last + 1; ++row) {
        const std::int32_t y = layout.Content.Top + (row - state_.FirstVisible) * layout.RowPitch;
        if (y <= layout.Content.Top || y >= layout.Content.Bottom) continue;
        canvas.Line({layout.Content.Left, y}, {layout.Content.Right, y}, colour);
    }
    const std::int32_t x = std::max(layout.Labels.Left, layout.Values.Left) - 1;
    canvas.Line({x, layout.Content.Top}, {x, layout.Content.Bottom}, colour);
}

void GridPainter::PaintBelowRows(Canvas& canvas) const {
    Rect rest = state_.Layout.Content;
    const std::int32_t rows = std::max(state_.LastVisible() - state_.FirstVisible + 1, 0);
    rest.Top += rows * state_.Layout.RowPitch + (rows > 0 ? 1 : 0);
    if (!rest.IsEmpty()) canvas.Fill(rest, state_.Colours.LabelBackground);
}

void GridPainter::PaintRows(Canvas& canvas, const Rect& clip, RowRange rows) const {
    canvas.SetClip(clip);
    RowPainter painter(state_, images_, canvas, clip);
    for (std::int32_t row = rows.First; row <= rows.Last; ++row) {
        if (const auto cell = state_.RowCell(row)) painter.PaintValue(*cell, row);
    }
    for (std::int32_t row = rows.First; row <= rows.Last; ++row) {
        if (const auto cell = state_.RowCell(row)) painter.PaintLabel(*cell, row);
    }
}

} // namespace quillgrid
