#pragma once

#include "quillgrid/base/DateTime.h"
#include "quillgrid/base/Export.h"

#include <cstdint>

namespace quillgrid {

/// A year of the calendar and the place of a day in it.
struct YearDay {
    std::int32_t Year = FirstYear;
    std::int32_t Index = 0; ///< 0 for 1 January
};

constexpr bool IsLeapYear(std::int32_t year) {
    return year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
}

/// The day number of 1 January; years 100 to 10000.
constexpr std::int32_t NewYear(std::int32_t year) {
    constexpr std::int32_t daysBeforeEpoch = 693'593; // from 1 January 0001 to 30 December 1899
    const auto past = static_cast<std::uint32_t>(year - 1);
    return static_cast<std::int32_t>(past * 365 + past / 4 - past / 100 + past / 400) - daysBeforeEpoch;
}

/// The year of a valid day.
constexpr YearDay YearDayOf(std::int32_t day) {
    // The mean length of a year brings the estimate within one year of the truth.
    auto year =
        static_cast<std::int32_t>(static_cast<std::uint32_t>(day - FirstDay) * 400U / 146'097U) + FirstYear;
    std::int32_t start = NewYear(year);
    if (day < start) {
        --year;
        start = NewYear(year);
    } else if (day - start >= 365) {
        const std::int32_t next = NewYear(year + 1);
        if (day >= next) {
            ++year;
            start = next;
        }
    }
    return {year, day - start};
}

/// The days of a year before the first of a month (1 to 12).
constexpr std::int32_t DaysBeforeMonth(std::int32_t year, std::int32_t month) {
    constexpr std::int32_t days[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return days[month - 1] + (month > 2 && IsLeapYear(year) ? 1 : 0);
}

constexpr std::int32_t DayOf(YearDay place) {
    return NewYear(place.Year) + place.Index;
}

/// Month and day of a day of a year: with February counted as 30 days long, months begin along a straight
/// line.
constexpr CivilDate DateOf(YearDay place) {
    const std::int32_t daysToMarch = IsLeapYear(place.Year) ? 60 : 59;
    const std::int32_t straight = place.Index + (place.Index < daysToMarch ? 0 : 61 - daysToMarch);
    const std::int32_t month = (12 * straight + 373) / 367;
    return {place.Year, month, place.Index - DaysBeforeMonth(place.Year, month) + 1};
}

/// The parts of a valid day.
constexpr CivilDate DateOf(std::int32_t day) {
    return DateOf(YearDayOf(day));
}

/// The valid day nearest to any number.
constexpr std::int32_t NearestValidDay(std::int32_t day) {
    return day < FirstDay ? FirstDay : day > LastDay ? LastDay : day;
}

/// Easter Sunday by Gauss's rule in its first form, which is right for the years 1583 to 4199.
QUILLGRID_EXPORT std::int32_t EasterDay(std::int32_t year);
/// The German Day of Repentance: the Wednesday between 16 and 22 November.
QUILLGRID_EXPORT std::int32_t BusstagDay(std::int32_t year);

} // namespace quillgrid
