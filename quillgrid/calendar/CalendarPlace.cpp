#include "quillgrid/calendar/CalendarPlace.h"

namespace quillgrid {

CalendarPlace CalendarPlace::At(Point point, const CalendarPadLayout& layout, const MonthView& view,
                                bool buttons) {
    if (!layout.Pad.Contains(point)) return {Kind::Outside};
    if (layout.CaptionText.Contains(point)) return {point.X >= view.YearStart ? Kind::Year : Kind::Month};
    if (layout.Bottom.Contains(point)) return {Kind::Today};
    if (const auto cell = layout.CellAt(point)) return {.What = Kind::Day, .Cell = *cell};
    const auto button = buttons ? layout.ButtonAt(point) : std::nullopt;
    return button ? CalendarPlace{.What = Kind::Button, .Which = *button} : CalendarPlace{};
}

} // namespace quillgrid
