#include "quillgrid/grid/GridPainter.h"

#include "quillgrid/grid/FramePainter.h"
#include "quillgrid/grid/GridLinePainter.h"
#include "quillgrid/grid/RowPainter.h"

#include <algorithm>

namespace quillgrid {

void GridPainter::Paint(Canvas& canvas, const Rect& dirty) {
    if (busy_ || state_.Terminated) return;
    const FlagGuard busy(busy_);
    const RowRange rows = RowsIn(dirty);
    canvas.SetClip(dirty);
    PaintFrame(canvas, rows);
    PaintGroupGlyphs(canvas, dirty, rows);
    if (!Intersection(dirty, state_.Layout.Tips).IsEmpty()) FramePainter(state_, canvas).PaintTips();
    const Rect clip = Intersection(dirty, state_.Layout.Content);
    if (!clip.IsEmpty()) PaintRows(canvas, clip, rows);
    canvas.ClearClip();
}

GridPainter::RowRange GridPainter::RowsIn(const Rect& area) const {
    Rect rows = state_.Layout.Content; // the group margin stands beside it
    rows.Left = std::min(rows.Left, state_.Layout.Control.Left);
    rows.Right = std::max(rows.Right, state_.Layout.Control.Right);
    const Rect part = Intersection(area, rows);
    if (part.IsEmpty()) return {};
    const std::int32_t top = state_.Layout.Content.Top;
    const std::int32_t pitch = state_.Layout.RowPitch;
    return {state_.FirstVisible + (part.Top - top) / pitch,
            std::min(state_.FirstVisible + (part.Bottom - 1 - top) / pitch, state_.LastVisible())};
}

void GridPainter::PaintFrame(Canvas& canvas, RowRange rows) const {
    FramePainter frame(state_, canvas);
    frame.PaintBackground();
    frame.PaintCaptionBar();
    frame.PaintEdges();
    if (state_.Layout.PropertyList) GridLinePainter(state_, canvas).Paint(rows.First, rows.Last);
}

void GridPainter::PaintGroupGlyphs(Canvas& canvas, const Rect& dirty, RowRange rows) const {
    const Rect clip = Intersection(dirty, state_.Layout.GroupMargin);
    if (clip.IsEmpty()) return;
    canvas.SetClip(clip);
    RowPainter painter(state_, images_, canvas, clip);
    for (std::int32_t row = rows.First; row <= rows.Last; ++row) {
        const auto cell = state_.RowCell(row);
        if (!cell || cell->Template() != qgctGroup) continue;
        const auto group = groups_.Find(cell->Group());
        painter.PaintGroupGlyph(row, !group || group->Expanded());
    }
    canvas.SetClip(dirty);
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
