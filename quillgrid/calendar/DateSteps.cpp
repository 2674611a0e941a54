#include "quillgrid/calendar/DateSteps.h"

#include "quillgrid/calendar/HolidayDates.h"

#include <algorithm>

namespace quillgrid {

namespace {

DateTime FromParts(std::int64_t year, std::int64_t month, std::int64_t day) {
    const std::int32_t limit = year < FirstYear + 1 ? FirstDay : LastDay;
    return {DayFromParts(year, month, day).value_or(limit)};
}

CivilDate PartsOf(DateTime date) {
    return PartsFromDay(NearestValidDay(date.Day));
}

} // namespace

DateTime Stepped(DateTime date, StepUnit unit, std::int32_t count) {
    const std::int32_t day = NearestValidDay(date.Day);
    switch (unit) {
    case StepUnit::Day: return {AddDays(day, count).value_or(day)};
    case StepUnit::Week: return {AddWeeks(day, count).value_or(day)};
    case StepUnit::Month: return {AddMonths(day, count).value_or(day)};
    default: return {AddYears(day, count).value_or(day)};
    }
}

DateTime WithMonth(DateTime date, std::int32_t month) {
    const CivilDate parts = PartsOf(date);
    const CivilDate first = PartsOf(FromParts(parts.Year, month, 1));
    const std::int32_t day = std::min(parts.Day, DaysInMonth(first.Year, first.Month));
    return FromParts(first.Year, first.Month, day);
}

DateTime WithYear(DateTime date, std::int32_t year) {
    const CivilDate parts = PartsOf(date);
    return FromParts(year, parts.Month, parts.Day);
}

DateTime WithDay(DateTime date, std::int32_t day) {
    const CivilDate parts = PartsOf(date);
    return FromParts(parts.Year, parts.Month, day);
}

} // namespace quillgrid
