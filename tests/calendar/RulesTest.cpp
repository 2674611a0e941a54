#include "quillgrid/calendar/EnableFlags.h"
#include "quillgrid/calendar/Holidays.h"
#include "quillgrid/calendar/WorkCalendar.h"
#include "tests/cells/ErrorExpectation.h"

#include <gtest/gtest.h>

#include <set>

namespace quillgrid::test {

namespace {

DateTime On(int year, int month, int day) {
    return {*DayFromParts(year, month, day)};
}

/// The date that a rule of a preset shows in a year.
DateTime ShownDate(WorkCalendar& calendar, int year, const char* key) {
    calendar.ResolveHolidays(On(year, 7, 1));
    return calendar.Holidays()->Item(key)->DateValue();
}

} // namespace

TEST(HolidayDates, EasterAndTheDayOfRepentance) {
    EXPECT_EQ(DateTime{EasterDay(2024)}, On(2024, 3, 31));
    EXPECT_EQ(DateTime{EasterDay(2025)}, On(2025, 4, 20));
    EXPECT_EQ(DateTime{EasterDay(2000)}, On(2000, 4, 23));
    EXPECT_EQ(DateTime{EasterDay(1981)}, On(1981, 4, 19)); // both exceptions of the rule
    EXPECT_EQ(DateTime{EasterDay(1954)}, On(1954, 4, 18));
    EXPECT_EQ(DateTime{BusstagDay(2023)}, On(2023, 11, 22));
    EXPECT_EQ(DateTime{BusstagDay(2024)}, On(2024, 11, 20));
    EXPECT_EQ(DateTime{BusstagDay(2025)}, On(2025, 11, 19));
    for (std::int32_t year = FirstYear; year <= LastYear; ++year) {
        ASSERT_EQ(Weekday(EasterDay(year)), 1) << year;
        ASSERT_GE(EasterDay(year), *DayFromParts(year, 3, 22));
        ASSERT_LE(EasterDay(year), *DayFromParts(year, 4, 25));
        ASSERT_EQ(Weekday(BusstagDay(year)), 4) << year;
        ASSERT_EQ(PartsFromDay(BusstagDay(year)).Month, 11);
        ASSERT_EQ((PartsFromDay(BusstagDay(year)).Day - 16) / 7, 0) << year;
    }
}

/// The rule of Meeus, Jones and Butcher, which needs no exceptions.
TEST(HolidayDates, EasterAgreesWithAnotherRule) {
    for (int y = 1583; y <= 4199; ++y) {
        const int a = y % 19, b = y / 100, c = y % 100,
                  h = (19 * a + b - b / 4 - (b - (b + 8) / 25 + 1) / 3 + 15) % 30;
        const int l = (32 + 2 * (b % 4) + 2 * (c / 4) - h - c % 4) % 7;
        const int sum = h + l - 7 * ((a + 11 * h + 22 * l) / 451) + 114;
        ASSERT_EQ(DateTime{EasterDay(y)}, On(y, sum / 31, sum % 31 + 1)) << y;
    }
}

TEST(HolidayDates, YearsAndDatesOfAllDays) {
    for (std::int32_t day = FirstDay; day <= LastDay; ++day) {
        ASSERT_EQ(DateOf(day), PartsFromDay(day)) << day;
        ASSERT_EQ(YearDayOf(day).Year, PartsFromDay(day).Year) << day;
        ASSERT_EQ(DayOf(YearDayOf(day)), day);
    }
}

TEST(Holiday, RefusesAndLimits) {
    Holiday rule;
    rule.SetMonth(5);
    rule.SetDay(31);
    for (const int month : {-1, 13, INT32_MAX, INT32_MIN})
        ExpectError(20099, "Holiday:Month Property Let", [&] { rule.SetMonth(month); });
    for (const int day : {-1, 32, INT32_MAX})
        ExpectError(20099, "Holiday:Day Property Let", [&] { rule.SetDay(day); });
    EXPECT_EQ(rule.Month(), 5);
    EXPECT_EQ(rule.Day(), 31);
    EXPECT_EQ(rule.DateValue(), DateTime{}); // not resolved yet
    const std::pair<int, int> years[] = {{50, 0}, {99, 0}, {100, 100}, {9999, 9999}, {12'000, 9999}, {-5, 0}};
    for (const auto& [given, stored] : years) {
        rule.SetFirstYear(given);
        rule.SetLastYear(given);
        EXPECT_EQ(rule.FirstYear(), stored);
        EXPECT_EQ(rule.LastYear(), stored);
    }
    rule.SetYear(2024);
    EXPECT_EQ(rule.DateValue(), On(2024, 5, 31));
    rule.SetMonth(0); // December of the year before
    rule.SetDay(0);
    EXPECT_EQ(rule.DateValue(), On(2023, 11, 30));
}

TEST(Holidays, KeepOrderAndKeys) {
    Holidays rules;
    const auto first = rules.Add({.Key = "Fest", .Month = 8, .Day = 8});
    EXPECT_EQ(first->Displayname(), "Fest");
    rules.Add({.Key = "Zweites", .DayType = qghtDaysFromEaster, .Displayname = "Name", .Enabled = false});
    const auto refused = [&](HolidayArguments arguments) {
        ExpectError(20091, "Holidays:Add Method", [&] { rules.Add(std::move(arguments)); });
        EXPECT_EQ(rules.Count(), 2);
    };
    refused({.Key = "FEST"});
    refused({.Key = "a", .Month = 13});
    refused({.Key = "b", .Day = -1});
    EXPECT_EQ(rules.Item("zweites")->Displayname(), "Name");
    EXPECT_EQ(rules.Item(1), first);
    ExpectError(20092, "Holidays:Item Property Get", [&] { (void)rules.Item(3); });
    ExpectError(20092, "Holidays:Item Property Get", [&] { (void)rules.Item("1"); });
    ExpectError(20092, "Holidays:Remove Method", [&] { rules.Remove(0); });
    rules.Remove("Fest");
    EXPECT_EQ(rules.Item(1)->Key(), "Zweites");
    first->SetMonth(3); // out of the list, and still whole
    EXPECT_EQ(first->Month(), 3);
    rules.Clear();
    EXPECT_EQ(rules.Count(), 0);
}

TEST(HolidayPresets, FallOnKnownDates) {
    WorkCalendar calendar(On(2024, 6, 3));
    EXPECT_EQ(ShownDate(calendar, 2024, "Rosenmontag"), On(2024, 2, 12));
    EXPECT_EQ(ShownDate(calendar, 2024, "Fronleichnam"), On(2024, 5, 30));
    EXPECT_EQ(ShownDate(calendar, 2024, "Erntedankfest"), On(2024, 10, 6));
    EXPECT_EQ(ShownDate(calendar, 2024, "Volkstrauertag"), On(2024, 11, 17));
    EXPECT_EQ(ShownDate(calendar, 2024, "Totensonntag"), On(2024, 11, 24));
    calendar.SetAutoHolidays(qgahdSwitzerland);
    EXPECT_EQ(ShownDate(calendar, 2024, "Eidgenössischer Bettag"), On(2024, 9, 15));
    EXPECT_EQ(ShownDate(calendar, 2024, "Bettag-Montag"), On(2024, 9, 16));
    EXPECT_EQ(ShownDate(calendar, 2025, "Bettag-Montag"),
              On(2025, 9, 15)); // the third Monday, six days early
    EXPECT_EQ(ShownDate(calendar, 2025, "Eidgenössischer Bettag"), On(2025, 9, 21));
}

TEST(HolidayPresets, SizesAndEnabledRules) {
    const std::pair<int, int> sizes[] = {{0, 0},  {1, 26}, {2, 18}, {3, 24},
                                         {99, 9}, {4, 9},  {-1, 9}, {INT32_MIN, 9}};
    WorkCalendar calendar;
    for (const auto& [preset, size] : sizes) {
        calendar.SetAutoHolidays(AutoHolidayConstants{preset});
        EXPECT_EQ(calendar.Holidays()->Count(), size) << preset;
    }
    calendar.SetAutoHolidays(qgahdGermany);
    std::set<int> enabled;
    int position = 0;
    for (const auto& rule : *calendar.Holidays()) {
        ++position;
        if (rule->Enabled()) enabled.insert(position);
    }
    EXPECT_EQ(enabled, (std::set<int>{1, 6, 7, 8, 9, 10, 11, 12, 17, 24, 25}));
}

TEST(HolidayPresets, EnableStringsOfAnyText) {
    const auto flags = [](const char* text) {
        const EnableFlags parsed(text);
        std::string on;
        for (std::size_t i = 1; i <= 5; ++i)
            on += parsed.IsOn(i) ? '1' : '0';
        return on;
    };
    EXPECT_EQ(flags(""), "11111");
    EXPECT_EQ(flags("0x"), "00111");
    EXPECT_EQ(flags("ä1é1"), "01011"); // characters, not bytes
    EXPECT_EQ(flags("\xff\xfe"
                    "10"),
              "00101");
    EXPECT_EQ(flags("0000011111111111111111111111111111111111111111"), "00000");
}

TEST(Resolution, WeekdaysOfTheMonth) {
    WorkCalendar calendar(On(2024, 1, 1));
    calendar.SetAutoHolidays(qgahdNone);
    const auto fifth =
        calendar.Holidays()->Add({.Key = "fifth", .DayType = qghtMondayOfMonth, .Month = 2, .Shift = 5});
    const auto negative =
        calendar.Holidays()->Add({.Key = "negative", .DayType = qghtFridayOfMonth, .Month = 2, .Shift = -3});
    const auto monthless = calendar.Holidays()->Add({.Key = "monthless", .DayType = qghtSundayOfMonth});
    calendar.ResolveHolidays(On(2024, 1, 1));
    EXPECT_EQ(fifth->DateValue(), On(2024, 3, 4));
    EXPECT_EQ(negative->DateValue(), On(2024, 2, 2));
    EXPECT_EQ(monthless->Month(), 12); // of the year before, but a rule's year is the resolved one
    EXPECT_EQ(monthless->Year(), 2024);
    calendar.ResolveHolidays(On(2025, 1, 1)); // from February again, not from March
    EXPECT_EQ(fifth->DateValue(), On(2025, 3, 3));
    calendar.ResolveHolidays(On(100, 1, 1)); // where the year before is no year of the calendar
    EXPECT_EQ(monthless->Month(), 0);
}

TEST(Resolution, UserDatesRecurOnTheirMonthAndDay) {
    WorkCalendar calendar(On(2024, 1, 1));
    const auto rule = calendar.Holidays()->Add({.Key = "user", .DayType = qghtDaysFromUserDate2, .Shift = 1});
    calendar.ResolveHolidays(On(2023, 1, 1));
    EXPECT_EQ(rule->DateValue(), On(2023, 12, 31)); // 30 December 1899 and a day
    calendar.SetUserDate2({*DayFromParts(1960, 2, 28), 4000});
    EXPECT_EQ(calendar.UserDate2().Second, 4000);
    calendar.ResolveHolidays(On(2024, 1, 1));
    EXPECT_EQ(calendar.Dayname(On(2024, 2, 29)), "user");
    EXPECT_FALSE(calendar.IsWorkDay(On(2024, 2, 29)));
    calendar.ResolveHolidays(On(2023, 1, 1));
    EXPECT_EQ(calendar.WorkDayDiff(On(2023, 2, 27), On(2023, 3, 3)), 5); // 29 February does not come
    calendar.SetUserDate2({INT32_MAX});
    calendar.ResolveHolidays(On(2022, 1, 1)); // beyond the calendar there is no day to mark
    EXPECT_EQ(rule->Month(), 0);
}

TEST(Resolution, OrderDecidesMarksAndNames) {
    WorkCalendar calendar(On(2024, 5, 6));
    calendar.SetAutoHolidays(qgahdNone);
    auto& rules = *calendar.Holidays();
    rules.Add({.Key = "always", .Month = 5, .Day = 8});
    const auto later = rules.Add({.Key = "later", .Month = 5, .Day = 8});
    later->SetFirstYear(2025);
    calendar.ResolveHolidays(On(2024, 5, 6));
    EXPECT_TRUE(calendar.IsWorkDay(On(2024, 5, 8))); // out of its years it takes the other's mark away
    EXPECT_EQ(calendar.Dayname(On(2024, 5, 8)), "later");
    EXPECT_FALSE(calendar.IsWorkDay(On(2025, 5, 8)));
    later->SetEnabled(false);
    calendar.ResolveHolidays(On(2024, 5, 6));
    EXPECT_FALSE(calendar.IsWorkDay(On(2024, 5, 8)));
    EXPECT_EQ(calendar.Dayname(On(2024, 5, 8)), "later"); // disabled rules name their day
}

TEST(Resolution, ChangesShowWithTheNextMonth) {
    WorkCalendar calendar(On(2024, 5, 6));
    calendar.Holidays()->Add({.Key = "May", .Month = 5, .Day = 8});
    calendar.Holidays()->Add({.Key = "June", .Month = 6, .Day = 5});
    calendar.Holidays()->Add({.Key = "Easter", .DayType = qghtDaysFromEaster, .Shift = 2});
    EXPECT_TRUE(calendar.IsWorkDay(On(2024, 5, 8)));
    EXPECT_FALSE(calendar.IsWorkDay(On(2024, 6, 5)));
    EXPECT_FALSE(calendar.IsWorkDay(On(2024, 5, 8)));
    EXPECT_TRUE(calendar.IsWorkDay(On(2024, 4, 2))); // not resolved in this year
    EXPECT_FALSE(calendar.IsWorkDay(On(2025, 4, 22)));
    EXPECT_FALSE(calendar.IsWorkDay(On(2024, 4, 2)));
}

TEST(Resolution, RulesOutliveAndShareCalendars) {
    const auto shared = std::make_shared<Holidays>();
    const auto easter = shared->Add({.Key = "e", .DayType = qghtDaysFromEaster, .Shift = 1});
    WorkCalendar keeper(On(2024, 1, 1));
    {
        WorkCalendar other(On(2030, 1, 1));
        keeper.SetHolidays(shared);
        other.SetHolidays(shared);
        keeper.ResolveHolidays(On(2024, 1, 1));
        other.ResolveHolidays(On(2025, 1, 1));
        // What the other one resolved is what this one's next month finds.
        EXPECT_EQ(keeper.Dayname(On(2024, 4, 21)), "e");
        keeper.ResolveHolidays(On(2024, 1, 1));
        EXPECT_EQ(easter->DateValue(), On(2024, 4, 1));
        other.ResolveHolidays(On(2026, 1, 1));
    }
    EXPECT_EQ(easter->DateValue(), On(2026, 4, 6));
    keeper.SetHolidays(nullptr);
    EXPECT_EQ(keeper.Holidays()->Count(), 0);
    EXPECT_EQ(easter->Year(), 2026);
}

} // namespace quillgrid::test
