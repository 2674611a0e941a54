#include "quillgrid/calendar/CalendarNames.h"

namespace quillgrid {

std::int32_t CalendarNames::SundayColumn() const {
    return (qgdwSunday - FirstDay + 7) % 7;
}

CalendarNames CalendarNames::Of(const Locale& locale, DayOfWeekConstants firstDay,
                                FirstWeekOfYearConstants firstWeek) {
    CalendarNames names;
    const bool ownDay = firstDay >= qgdwSunday && firstDay <= qgdwSaturday;
    const bool ownWeek = firstWeek >= qgfwFirstJan1 && firstWeek <= qgfwFirstFullWeek;
    names.FirstDay = ownDay ? firstDay : locale.FirstDayOfWeek;
    names.FirstWeek = ownWeek ? firstWeek : locale.FirstWeekOfYear;
    for (std::size_t column = 0; column < 7; ++column) {
        const std::size_t day = (column + static_cast<std::size_t>(names.FirstDay) - 1) % 7;
        names.ShortDays[column] = locale.ShortDayNames[day];
        names.LongDays[column] = locale.DayNames[day];
    }
    names.ShortMonths = locale.ShortMonthNames;
    names.LongMonths = locale.MonthNames;
    return names;
}

} // namespace quillgrid
