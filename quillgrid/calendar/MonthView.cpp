#include "quillgrid/calendar/MonthView.h"

#include <cstdio>

namespace quillgrid {

namespace {

std::string ColourText(Colour colour) {
    char text[16];
    if (IsSystemColour(colour)) {
        std::snprintf(text, sizeof text, "sys%u", colour & 0xFFU);
    } else {
        std::snprintf(text, sizeof text, "%02x%02x%02x", colour & 0xFFU, colour >> 8U & 0xFFU,
                      colour >> 16U & 0xFFU);
    }
    return text;
}

std::string DayText(const MonthView& view, std::int32_t day) {
    const MonthView::Day& look = view.DayAt(day);
    std::string text = (day == view.Current ? "*" : "") + std::to_string(day);
    if (look.Ink != ColourWindowText) text += ":" + ColourText(look.Ink);
    if (look.Back) text += "/" + ColourText(*look.Back);
    return text;
}

} // namespace

Colour MonthView::BackOf(std::int32_t column) const {
    if (column == SundayColumn) return Colours.BackSunday;
    return column == SaturdayColumn ? Colours.BackSaturday : Colours.Back;
}

std::string MonthView::DumpText() const {
    std::string text = Caption + "\n";
    for (const std::string& name : DayNames)
        text += " " + name;
    for (std::int32_t cell = 0; cell < CalendarPadLayout::Cells; ++cell) {
        const std::int32_t day = cell - FirstCell + 1;
        const std::int32_t week = cell / CalendarPadLayout::Columns;
        if (cell % CalendarPadLayout::Columns == 0)
            text += "\n[" + std::to_string(Weeks[static_cast<std::size_t>(week)]) + "]";
        text += " " + (day >= 1 && day <= DayCount ? DayText(*this, day) : "-");
    }
    return text + "\n" + Status + "\n";
}

} // namespace quillgrid
