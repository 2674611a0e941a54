#include "quillgrid/base/DateTime.h"

#include <algorithm>
#include <cmath>

namespace quillgrid {

namespace {

constexpr std::int64_t DaysPerEra = 146'097; // 400 years
constexpr std::int64_t EpochShift = 693'899; // from 1 March 0000 to 30 December 1899

constexpr std::int64_t FloorDivide(std::int64_t dividend, std::int64_t divisor) {
    const std::int64_t quotient = dividend / divisor;
    return dividend % divisor < 0 ? quotient - 1 : quotient;
}

/// Howard Hinnant's days_from_civil, shifted to our day 0; parts in range.
constexpr std::int64_t DayOfCivil(std::int64_t year, std::int64_t month, std::int64_t day) {
    const std::int64_t y = month <= 2 ? year - 1 : year;
    const std::int64_t era = FloorDivide(y, 400);
    const std::int64_t yearOfEra = y - era * 400;
    const std::int64_t dayOfYear = (153 * (month > 2 ? month - 3 : month + 9) + 2) / 5 + day - 1;
    const std::int64_t dayOfEra = yearOfEra * 365 + yearOfEra / 4 - yearOfEra / 100 + dayOfYear;
    return era * DaysPerEra + dayOfEra - EpochShift;
}

static_assert(DayOfCivil(1899, 12, 30) == 0);
static_assert(DayOfCivil(FirstYear, 1, 1) == FirstDay);
static_assert(DayOfCivil(LastYear, 12, 31) == LastDay);

std::optional<std::int32_t> ValidDay(std::int64_t day) {
    if (!IsValidDay(day)) return std::nullopt;
    return static_cast<std::int32_t>(day);
}

/// Sunday 0 to Saturday 6. Day 0 was a Saturday.
constexpr std::int64_t SundayBased(std::int64_t day) {
    return day + 6 - FloorDivide(day + 6, 7) * 7;
}

DayOfWeekConstants KnownFirstDay(DayOfWeekConstants first) {
    return first >= qgdwSunday && first <= qgdwSaturday ? first : qgdwSunday;
}

/// The day on which week 1 of a year begins.
std::int64_t FirstWeekStart(std::int64_t year, DayOfWeekConstants firstDay,
                            FirstWeekOfYearConstants firstWeek) {
    const std::int64_t newYear = DayOfCivil(year, 1, 1);
    const std::int64_t offset = (SundayBased(newYear) - (firstDay - qgdwSunday) + 7) % 7;
    const std::int64_t start = newYear - offset;
    if (firstWeek == qgfwFirstFourDays) return offset <= 3 ? start : start + 7;
    if (firstWeek == qgfwFirstFullWeek) return offset == 0 ? start : start + 7;
    return start;
}

} // namespace

std::optional<std::int32_t> DayFromParts(std::int64_t year, std::int64_t month, std::int64_t day) {
    // Keeps the sums below within 64 bits.
    constexpr std::int64_t limit = 100'000'000'000;
    for (const std::int64_t part : {year, month, day}) {
        if (part < -limit || part > limit) return std::nullopt;
    }
    const std::int64_t months = year * 12 + (month - 1);
    const std::int64_t normalYear = FloorDivide(months, 12);
    return ValidDay(DayOfCivil(normalYear, months - normalYear * 12 + 1, 1) + day - 1);
}

CivilDate PartsFromDay(std::int32_t day) {
    const std::int64_t shifted = static_cast<std::int64_t>(day) + EpochShift;
    const std::int64_t era = FloorDivide(shifted, DaysPerEra);
    const std::int64_t dayOfEra = shifted - era * DaysPerEra;
    const std::int64_t yearOfEra =
        (dayOfEra - dayOfEra / 1460 + dayOfEra / 36'524 - dayOfEra / 146'096) / 365;
    const std::int64_t dayOfYear = dayOfEra - (365 * yearOfEra + yearOfEra / 4 - yearOfEra / 100);
    const std::int64_t marchMonth = (5 * dayOfYear + 2) / 153;
    const std::int64_t month = marchMonth < 10 ? marchMonth + 3 : marchMonth - 9;
    const std::int64_t year = yearOfEra + era * 400 + (month <= 2 ? 1 : 0);
    return {static_cast<std::int32_t>(year), static_cast<std::int32_t>(month),
            static_cast<std::int32_t>(dayOfYear - (153 * marchMonth + 2) / 5 + 1)};
}

std::optional<std::int32_t> AddDays(std::int32_t day, std::int64_t count) {
    constexpr std::int64_t span = LastDay - FirstDay;
    if (count < -2 * span || count > 2 * span) return std::nullopt;
    return ValidDay(day + count);
}

std::optional<std::int32_t> AddWeeks(std::int32_t day, std::int64_t count) {
    constexpr std::int64_t span = LastDay - FirstDay;
    if (count < -span || count > span) return std::nullopt;
    return AddDays(day, count * 7);
}

std::optional<std::int32_t> AddMonths(std::int32_t day, std::int64_t count) {
    constexpr std::int64_t span = std::int64_t{LastYear} * 12;
    if (count < -span || count > span) return std::nullopt;
    const CivilDate date = PartsFromDay(day);
    const std::int64_t months = date.Year * std::int64_t{12} + (date.Month - 1) + count;
    const std::int64_t year = FloorDivide(months, 12);
    if (year < FirstYear || year > LastYear) return std::nullopt;
    const int month = static_cast<int>(months - year * 12 + 1);
    return DayFromParts(year, month, std::min<int>(date.Day, DaysInMonth(static_cast<int>(year), month)));
}

std::optional<std::int32_t> AddYears(std::int32_t day, std::int64_t count) {
    if (count < -LastYear || count > LastYear) return std::nullopt;
    return AddMonths(day, count * 12);
}

int Weekday(std::int32_t day, DayOfWeekConstants first) {
    const int offset = KnownFirstDay(first) - qgdwSunday;
    return static_cast<int>((SundayBased(day) - offset + 7) % 7 + 1);
}

int DayOfYear(std::int32_t day) {
    return static_cast<int>(day - DayOfCivil(PartsFromDay(day).Year, 1, 1) + 1);
}

int Quarter(std::int32_t day) {
    return (PartsFromDay(day).Month - 1) / 3 + 1;
}

int WeekOfYear(std::int32_t day, DayOfWeekConstants firstDay, FirstWeekOfYearConstants firstWeek) {
    const DayOfWeekConstants first = KnownFirstDay(firstDay);
    const std::int64_t year = PartsFromDay(day).Year;
    std::int64_t start = FirstWeekStart(year, first, firstWeek);
    // The week with 1 January always counts from its own year: 31 December never becomes week 1.
    const bool weeksCrossYears = firstWeek == qgfwFirstFourDays || firstWeek == qgfwFirstFullWeek;
    if (day < start) {
        start = FirstWeekStart(year - 1, first, firstWeek);
    } else if (weeksCrossYears) {
        const std::int64_t next = FirstWeekStart(year + 1, first, firstWeek);
        if (day >= next) start = next;
    }
    return static_cast<int>((day - start) / 7 + 1);
}

std::optional<std::int32_t> SecondsFromParts(int hour, int minute, int second) {
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59) return std::nullopt;
    return hour * 3600 + minute * 60 + second;
}

double ToSerial(DateTime value) {
    const double fraction = static_cast<double>(value.Second) / SecondsPerDay;
    return value.Day < 0 ? value.Day - fraction : value.Day + fraction;
}

std::optional<DateTime> FromSerial(double serial) {
    if (!(serial > FirstDay - 1.0 && serial < LastDay + 1.0)) return std::nullopt;
    const double whole = std::trunc(serial);
    std::int64_t day = static_cast<std::int64_t>(whole);
    std::int64_t second = std::llround(std::abs(serial - whole) * SecondsPerDay);
    if (second == SecondsPerDay) {
        second = 0;
        ++day;
    }
    if (!IsValidDay(day)) return std::nullopt;
    return DateTime{static_cast<std::int32_t>(day), static_cast<std::int32_t>(second)};
}

} // namespace quillgrid
