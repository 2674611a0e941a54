#include "quillgrid/calendar/HolidayDates.h"

namespace quillgrid {

namespace {

/// The date in April, or in March counted on from its last day: 0 is 31 March.
std::int32_t EasterInApril(std::int32_t year) {
    const std::int32_t k = year / 100;
    const std::int32_t n = k - year / 400 + 4;
    const std::int32_t m = n - year / 300 + 11;
    const std::int32_t lunar = (19 * (year % 19) + m) % 30;
    const std::int32_t toSunday = (2 * (year % 4) + 4 * year + 6 * lunar + n) % 7;
    const std::int32_t april = lunar + toSunday - 9;
    if (april == 26) return 19;
    if (april == 25 && lunar == 28 && (11 * m + 11) % 30 < 19) return 18;
    return april;
}

} // namespace

std::int32_t EasterDay(std::int32_t year) {
    return NewYear(year) + DaysBeforeMonth(year, 4) + EasterInApril(year) - 1;
}

std::int32_t BusstagDay(std::int32_t year) {
    const std::int32_t november = NewYear(year) + DaysBeforeMonth(year, 11);
    const std::int32_t weekday = Weekday(november);
    return november + (weekday < 4 ? 19 : 26) - weekday - 1;
}

} // namespace quillgrid
