// Dates and times of day. A date is a whole day number (day 0 is 30 December 1899, proleptic Gregorian) and
// is kept apart from the seconds of its day; the fractional form exists only at the edge (ToSerial).
#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Export.h"

#include <compare>
#include <cstdint>
#include <optional>

namespace quillgrid {

struct CivilDate {
    std::int32_t Year = 1899;
    std::int32_t Month = 12; ///< 1 to 12
    std::int32_t Day = 30;   ///< 1 to 31

    friend bool operator==(const CivilDate&, const CivilDate&) = default;
};

/// A point in time: whole days since 30 December 1899 and seconds since midnight.
struct DateTime {
    std::int32_t Day = 0;
    std::int32_t Second = 0; ///< 0 to 86399

    friend constexpr bool operator==(DateTime, DateTime) = default;
    friend constexpr std::strong_ordering operator<=>(DateTime left, DateTime right) {
        return left.Day != right.Day ? left.Day <=> right.Day : left.Second <=> right.Second;
    }
};

inline constexpr std::int32_t SecondsPerDay = 86'400;
inline constexpr std::int32_t FirstDay = -657'434; ///< 1 January 100, the first valid day
inline constexpr std::int32_t LastDay = 2'958'465; ///< 31 December 9999, the last valid day
inline constexpr std::int32_t FirstYear = 100;
inline constexpr std::int32_t LastYear = 9999;

constexpr bool IsValidDay(std::int64_t day) {
    return day >= FirstDay && day <= LastDay;
}

/// Days in a month (1 to 12) of a year of the proleptic Gregorian calendar.
constexpr int DaysInMonth(int year, int month) {
    constexpr int days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    const bool leap = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return month == 2 && leap ? 29 : days[month < 1 ? 0 : month > 12 ? 11 : month - 1];
}

/// The day number of a date whose parts must name a day of the calendar in years 100 to 9999. Here to be
/// inlined: in 32 bits and without eras it is what reading a typed date spends most of its time on.
constexpr std::optional<std::int32_t> DayFromDate(std::int32_t year, std::int32_t month, std::int32_t day) {
    if (year < FirstYear || year > LastYear || month < 1 || month > 12 || day < 1) return std::nullopt;
    if (day > 28 && day > DaysInMonth(year, month)) return std::nullopt;
    // Years begin in March, so that the leap day is the last one.
    const auto y = static_cast<std::uint32_t>(month <= 2 ? year - 1 : year);
    const auto m = static_cast<std::uint32_t>(month > 2 ? month - 3 : month + 9);
    const std::uint32_t daysBefore = y * 365 + y / 4 - y / 100 + y / 400 + (153 * m + 2) / 5;
    constexpr std::int32_t daysBeforeEpoch = 693'899; // from 1 March 0000 to 30 December 1899
    return static_cast<std::int32_t>(daysBefore) + day - 1 - daysBeforeEpoch;
}

/// The day number of a date whose parts may lie outside their ranges: month 13 is January of the next year,
/// day 0 the last day of the previous month. Nothing when the result leaves years 100 to 9999 or when a part
/// lies beyond 10^11 either way.
QUILLGRID_EXPORT std::optional<std::int32_t> DayFromParts(std::int64_t year, std::int64_t month,
                                                          std::int64_t day);
/// The parts of a valid day number.
QUILLGRID_EXPORT CivilDate PartsFromDay(std::int32_t day);

QUILLGRID_EXPORT std::optional<std::int32_t> AddDays(std::int32_t day, std::int64_t count);
QUILLGRID_EXPORT std::optional<std::int32_t> AddWeeks(std::int32_t day, std::int64_t count);
/// Months and years keep to the last day of a shorter month: 31 January plus one month is 28 or 29 February.
QUILLGRID_EXPORT std::optional<std::int32_t> AddMonths(std::int32_t day, std::int64_t count);
QUILLGRID_EXPORT std::optional<std::int32_t> AddYears(std::int32_t day, std::int64_t count);

/// 1 to 7, where 1 is `first`; `qgdwUseSystem` and values outside the list count as Sunday.
QUILLGRID_EXPORT int Weekday(std::int32_t day, DayOfWeekConstants first = qgdwSunday);
/// 1 to 366.
QUILLGRID_EXPORT int DayOfYear(std::int32_t day);
/// 1 to 4.
QUILLGRID_EXPORT int Quarter(std::int32_t day);
/// The week number 1 to 54 of a day: week 1 is the one with 1 January, the first with four days in the year,
/// or the first full week. A day before week 1 belongs to the last week of the year before; under the
/// four-days rule the last days of December may belong to week 1 of the next year (ISO 8601 with Monday).
/// `qgdwUseSystem` counts as Sunday, `qgfwUseSystem` as the week with 1 January.
QUILLGRID_EXPORT int WeekOfYear(std::int32_t day, DayOfWeekConstants firstDay,
                                FirstWeekOfYearConstants firstWeek);

/// Seconds since midnight, or nothing when a part is outside 0..23, 0..59, 0..59.
QUILLGRID_EXPORT std::optional<std::int32_t> SecondsFromParts(int hour, int minute, int second);

/// Days since 30 December 1899 with the time as the fraction's absolute value (automation dates: -1.25 is
/// 29 December 1899, 6:00).
QUILLGRID_EXPORT double ToSerial(DateTime value);
/// The reverse, rounded to the nearest second; nothing for NaN and outside years 100 to 9999.
QUILLGRID_EXPORT std::optional<DateTime> FromSerial(double serial);

} // namespace quillgrid
