#pragma once

#include "quillgrid/platform/Canvas.h"

#include <cstdint>

namespace quillgrid {

class ListPadCore;
class Listitem;
struct ListPadRow;

/// Draws the list pad as it is now: its border and the rows in view.
class ListPadPainter {
public:
    /// Everything outlives the painter; `images` may be null.
    ListPadPainter(Canvas& canvas, const ListPadCore& core, const ImageSource* images)
        : canvas_(canvas), core_(core), images_(images) {}

    /// What lies in the area; may draw beyond it.
    void Paint(const Rect& area);

private:
    void PaintBorder();
    void PaintRow(std::int32_t row);
    void PaintSample(const Rect& row, const Rect& text, Colour ink);
    void PaintEntry(const Listitem& item, const ListPadRow& parts, Colour ink);
    void PaintSign(const Listitem& item, const ListPadRow& parts);
    void PaintFocusRect(const Rect& area);
    /// From the rows in view to the pad.
    Rect OnPad(const Rect& area) const;

    Canvas& canvas_;
    const ListPadCore& core_;
    const ImageSource* images_;
};

} // namespace quillgrid
