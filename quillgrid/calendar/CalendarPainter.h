#pragma once

#include "quillgrid/calendar/CalendarPadLayout.h"
#include "quillgrid/calendar/MonthView.h"
#include "quillgrid/platform/Canvas.h"

namespace quillgrid {

/// Paints a laid-out month, or what of it lies in an area.
class CalendarPainter {
public:
    CalendarPainter(const CalendarPadLayout& layout, const MonthView& view, Canvas& canvas)
        : layout_(layout), view_(view), canvas_(canvas) {}

    void Paint(const Rect& dirty);

private:
    bool Touches(const Rect& area) const;
    void PaintCaption();
    void PaintButtons();
    void PaintArrow(const Rect& button, bool forward);
    void PaintDayNames();
    void PaintGrid();
    void PaintBackgrounds();
    void PaintLines();
    void PaintWeeks();
    void PaintDays();
    void PaintDay(std::int32_t day);
    void PaintStatus();
    void CentredText(const Rect& area, std::string_view text, Colour ink, bool bold = false);

    const CalendarPadLayout& layout_;
    const MonthView& view_;
    Canvas& canvas_;
    Rect dirty_{};
};

} // namespace quillgrid
