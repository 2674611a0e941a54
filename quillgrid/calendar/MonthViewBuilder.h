#pragma once

#include "quillgrid/calendar/CalendarPadState.h"

#include <string>

namespace quillgrid {

/// Makes the view of a month out of the calendar, its ranges and the pad's properties as they are now.
class MonthViewBuilder {
public:
    explicit MonthViewBuilder(CalendarPadState& state) : state_(state) {}

    /// The month of `CurrentDate`.
    MonthView Build();
    /// Moves the highlight of the present view within its month.
    void MoveTo(DateTime date);
    /// The name of a day's holiday, else its weekday and date; the month table stays at `CurrentDate`.
    std::string DayText(DateTime date);

private:
    void Mark(MonthView& view, std::int32_t day);
    void NameMonth(MonthView& view) const;
    void CountWeeks(MonthView& view) const;
    void ColourParts(MonthView& view) const;
    void ColourDays(MonthView& view);
    Colour InkOf(const MonthView& view, std::int32_t day, Colour plain);
    Colour Legible(Colour ink, Colour paper) const;

    CalendarPadState& state_;
};

} // namespace quillgrid
