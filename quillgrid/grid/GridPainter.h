#pragma once

#include "quillgrid/cells/Groups.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/platform/Canvas.h"
#include "quillgrid/platform/ImageSource.h"

namespace quillgrid {

/// Paints the control: the frame, then the rows that lie in the part to be painted. What it costs follows the
/// rows in that part, never the number of cells.
class GridPainter {
public:
    GridPainter(const GridState& state, const Groups& groups, const ImageSource* images)
        : state_(state), groups_(groups), images_(images) {}

    /// A call within a call (a canvas that raises events) paints nothing.
    void Paint(Canvas& canvas, const Rect& dirty);

private:
    struct RowRange {
        std::int32_t First = 1;
        std::int32_t Last = 0;
    };

    RowRange RowsIn(const Rect& area) const;
    void PaintFrame(Canvas& canvas, RowRange rows) const;
    void PaintGroupGlyphs(Canvas& canvas, const Rect& dirty, RowRange rows) const;
    void PaintRows(Canvas& canvas, const Rect& clip, RowRange rows) const;

    const GridState& state_;
    const Groups& groups_;
    const ImageSource* images_;
    bool busy_ = false;
};

} // namespace quillgrid
