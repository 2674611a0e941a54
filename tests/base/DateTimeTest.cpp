#include "quillgrid/base/DateTime.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <limits>

namespace quillgrid {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::weekday;
using std::chrono::year;
using std::chrono::year_month_day;

year_month_day StandardDate(std::int32_t day) {
    return sys_days(year(1899) / 12 / 30) + days(day);
}

TEST(DateTime, AgreesWithTheStandardCalendarOnEveryDay) {
    for (std::int32_t day = FirstDay; day <= LastDay; ++day) {
        const year_month_day date = StandardDate(day);
        const CivilDate parts = PartsFromDay(day);
        ASSERT_EQ(parts.Year, static_cast<int>(date.year()));
        ASSERT_EQ(parts.Month, static_cast<int>(static_cast<unsigned>(date.month())));
        ASSERT_EQ(parts.Day, static_cast<int>(static_cast<unsigned>(date.day())));
        ASSERT_EQ(DayFromParts(parts.Year, parts.Month, parts.Day), day);
        ASSERT_EQ(DayFromDate(parts.Year, parts.Month, parts.Day), day);
        ASSERT_EQ(Weekday(day), static_cast<int>(weekday(sys_days(date)).c_encoding()) + 1);
    }
}

TEST(DateTime, NormalisesPartsAndKeepsToTheValidYears) {
    EXPECT_EQ(DayFromParts(2026, 13, 1), DayFromParts(2027, 1, 1));
    EXPECT_EQ(DayFromParts(2024, 3, 0), DayFromParts(2024, 2, 29));
    EXPECT_EQ(DayFromParts(2026, -11, 31), DayFromParts(2025, 1, 31));
    EXPECT_EQ(DayFromParts(99, 12, 32), FirstDay);
    EXPECT_FALSE(DayFromParts(99, 12, 31));
    EXPECT_FALSE(DayFromParts(9999, 12, 32));
    constexpr auto huge = std::numeric_limits<std::int64_t>::max();
    constexpr auto tiny = std::numeric_limits<std::int64_t>::min();
    EXPECT_FALSE(DayFromParts(huge, huge, huge));
    EXPECT_FALSE(DayFromParts(2026, tiny, 1));
    EXPECT_FALSE(AddDays(0, tiny));
    EXPECT_FALSE(AddWeeks(0, huge));
    EXPECT_FALSE(AddMonths(0, tiny));
    EXPECT_FALSE(AddYears(0, huge));
}

TEST(DateTime, DatesAreTakenAsTheyStandOrNotAtAll) {
    EXPECT_FALSE(DayFromDate(2026, 2, 29));
    EXPECT_FALSE(DayFromDate(1900, 2, 29));
    EXPECT_TRUE(DayFromDate(2000, 2, 29));
    EXPECT_FALSE(DayFromDate(2026, 4, 31));
    EXPECT_FALSE(DayFromDate(2026, 0, 1));
    EXPECT_FALSE(DayFromDate(2026, 13, 1));
    EXPECT_FALSE(DayFromDate(99, 12, 31));
    EXPECT_FALSE(DayFromDate(10'000, 1, 1));
    EXPECT_FALSE(DayFromDate(2026, 1, std::numeric_limits<std::int32_t>::max()));
}

TEST(DateTime, MonthsAndYearsKeepToTheLastDay) {
    const std::int32_t january31 = *DayFromParts(2024, 1, 31);
    EXPECT_EQ(AddMonths(january31, 1), DayFromParts(2024, 2, 29));
    EXPECT_EQ(AddMonths(january31, 13), DayFromParts(2025, 2, 28));
    EXPECT_EQ(AddMonths(january31, -2), DayFromParts(2023, 11, 30));
    EXPECT_EQ(AddYears(*DayFromParts(2024, 2, 29), 1), DayFromParts(2025, 2, 28));
    EXPECT_EQ(AddWeeks(january31, -1), DayFromParts(2024, 1, 24));
    EXPECT_FALSE(AddMonths(LastDay, 1));
}

/// The ISO week by its other definition: the week belongs to the year that holds its Thursday.
int IsoWeek(std::int32_t day) {
    const std::int32_t thursday = day - (Weekday(day, qgdwMonday) - 1) + 3;
    return (DayOfYear(thursday) - 1) / 7 + 1;
}

TEST(DateTime, WeeksOfTheYear) {
    for (std::int32_t day = *DayFromParts(1890, 1, 1); day < *DayFromParts(2110, 1, 1); ++day) {
        ASSERT_EQ(WeekOfYear(day, qgdwMonday, qgfwFirstFourDays), IsoWeek(day)) << day;
    }
    const std::int32_t saturday = *DayFromParts(2000, 1, 1);
    EXPECT_EQ(WeekOfYear(saturday, qgdwSunday, qgfwFirstJan1), 1);
    EXPECT_EQ(WeekOfYear(saturday + 1, qgdwSunday, qgfwFirstJan1), 2);
    EXPECT_EQ(WeekOfYear(saturday, qgdwSunday, qgfwFirstFullWeek), 52) << "last week of 1999";
    EXPECT_EQ(WeekOfYear(*DayFromParts(2000, 12, 31), qgdwSunday, qgfwFirstJan1), 54);
    EXPECT_EQ(WeekOfYear(saturday, qgdwUseSystem, qgfwUseSystem), 1);
    EXPECT_GE(WeekOfYear(FirstDay, qgdwMonday, qgfwFirstFullWeek), 1);
    EXPECT_EQ(WeekOfYear(LastDay, qgdwMonday, qgfwFirstFourDays), 52);
}

TEST(DateTime, SerialNumbersCarryTheTimeAsAnAbsoluteFraction) {
    EXPECT_EQ(ToSerial({-1, 21'600}), -1.25);
    EXPECT_EQ(FromSerial(-1.25), (DateTime{-1, 21'600}));
    EXPECT_EQ(FromSerial(2.9999999), (DateTime{3, 0}));
    for (std::int32_t day : {FirstDay, -40'000, -1, 0, 1, 46'342, LastDay}) {
        for (std::int32_t second = 0; second < SecondsPerDay; second += 617) {
            ASSERT_EQ(FromSerial(ToSerial({day, second})), (DateTime{day, second}));
        }
    }
    for (const double bad : {std::nan(""), HUGE_VAL, -700'000.0, 3'000'000.0})
        EXPECT_FALSE(FromSerial(bad));
    EXPECT_FALSE(SecondsFromParts(24, 0, 0));
    EXPECT_EQ(SecondsFromParts(23, 59, 59), SecondsPerDay - 1);
}

} // namespace
} // namespace quillgrid
