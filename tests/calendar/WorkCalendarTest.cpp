#include "quillgrid/calendar/WorkCalendar.h"
#include "tests/cells/ErrorExpectation.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>

namespace quillgrid::test {

namespace {

DateTime On(int year, int month, int day) {
    return {*DayFromParts(year, month, day)};
}

class Listener : public CalendarOwner {
public:
    const Locale& UserLocale() const override { return BuiltInLocale("en-GB"); }
    bool UserMode() const override { return Running; }
    void PropertyChanged(std::string_view key) override { Heard += std::string(key) + " "; }
    void CurrentDateAssigned(DateTime before) override {
        Heard += "from " + std::to_string(PartsFromDay(before.Day).Day) + " ";
        if (OnDate) OnDate();
    }
    void HolidaysReloaded() override { Heard += "reloaded "; }
    std::string Take() { return std::exchange(Heard, {}); }

    bool Running = true;
    std::string Heard;
    std::function<void()> OnDate;
};

class WorkCalendarTest : public testing::Test {
protected:
    void BlockEverything() {
        for (int month = 1; month <= 12; ++month) {
            for (int day = 1; day <= 31; ++day)
                calendar.Holidays()->Add(
                    {.Key = std::to_string(month * 100 + day), .Month = month, .Day = day});
        }
        calendar.ResolveHolidays(calendar.CurrentDate());
        calendar.Settings().Allow = {};
    }

    Listener listener;
    WorkCalendar calendar{On(2024, 12, 6), &listener};
};

} // namespace

TEST_F(WorkCalendarTest, DaysAndTheirNames) {
    EXPECT_TRUE(calendar.IsWorkDay(On(2024, 12, 24)));
    EXPECT_EQ(calendar.Dayname(On(2024, 12, 24)), "Heiliger Abend");
    EXPECT_FALSE(calendar.IsWorkDay(On(2024, 12, 25)));
    EXPECT_EQ(calendar.Dayname(On(2024, 12, 25)), "1. Weihnachtstag");
    EXPECT_EQ(calendar.Dayname(On(2024, 12, 3)), "Tuesday");
    EXPECT_EQ(calendar.Dayname({}), "Friday"); // CurrentDate
    EXPECT_EQ(WorkCalendar(On(2024, 12, 3)).Dayname({}), "Dienstag");
    EXPECT_TRUE(calendar.IsWorkDay());
    EXPECT_FALSE(calendar.IsWorkDay(DateTime{}));  // 30 December 1899 was a Saturday
    EXPECT_EQ(calendar.Easter(), On(2024, 3, 31)); // a weekend asks no rule
    EXPECT_TRUE(calendar.IsWorkDay(DateTime{-1}));
    EXPECT_EQ(calendar.Easter(), On(1899, 4, 2));
}

TEST_F(WorkCalendarTest, CountsAndAdds) {
    const DateTime friday = On(2024, 12, 6);
    EXPECT_EQ(calendar.WorkDayDiff(friday, On(2024, 12, 9)), 2);
    EXPECT_EQ(calendar.WorkDayDiff(On(2024, 12, 9), friday), 0);
    EXPECT_EQ(calendar.WorkDayDiff(friday, friday), 1);
    EXPECT_EQ(calendar.WorkDayDiff(On(2024, 12, 7), On(2024, 12, 8)), 0);
    EXPECT_EQ(calendar.WorkDayAdd(friday, 1), On(2024, 12, 9));
    EXPECT_EQ(calendar.WorkDayAdd(friday, -1), On(2024, 12, 5));
    EXPECT_EQ(calendar.WorkDayAdd(friday, 0), friday);
    EXPECT_EQ(calendar.WorkDayAdd({On(2024, 12, 7).Day, 77}, 0), (DateTime{On(2024, 12, 7).Day, 77}));
    EXPECT_EQ(calendar.WorkDayAdd({friday.Day, 3600}, 14), (DateTime{On(2024, 12, 30).Day, 3600}));
}

TEST_F(WorkCalendarTest, FlagsDecideWhatCounts) {
    const DateTime first = On(2024, 12, 21), last = On(2024, 12, 29); // Saturday to Sunday, two holidays
    EXPECT_EQ(calendar.WorkDayDiff(first, last), 3);
    calendar.SetWorkSaturday(true);
    EXPECT_EQ(calendar.WorkDayDiff(first, last), 5);
    calendar.SetWorkSunday(true);
    EXPECT_EQ(calendar.WorkDayDiff(first, last), 7);
    calendar.SetWorkHoliday(true);
    EXPECT_EQ(calendar.WorkDayDiff(first, last), 9);
    EXPECT_EQ(calendar.WorkDayAdd(first, 4), On(2024, 12, 25));
    calendar.SetWorkSaturday(false);
    calendar.SetWorkSunday(false);
    EXPECT_EQ(calendar.WorkDayDiff(first, last), 5);
    EXPECT_EQ(listener.Take(), "WorkSaturday WorkSunday WorkHoliday WorkSaturday WorkSunday ");
}

TEST_F(WorkCalendarTest, StopsAtTheEndsOfTheCalendar) {
    for (const bool workHoliday : {false, true}) {
        calendar.SetWorkHoliday(workHoliday);
        for (const DateTime start : {On(2024, 12, 6), DateTime{FirstDay}, DateTime{LastDay},
                                     DateTime{INT32_MAX, -9}, DateTime{INT32_MIN, INT32_MIN}}) {
            EXPECT_EQ(calendar.WorkDayAdd(start, INT32_MAX).Day, LastDay);
            EXPECT_EQ(calendar.WorkDayAdd(start, INT32_MIN).Day, FirstDay);
        }
        EXPECT_GT(calendar.WorkDayDiff({INT32_MIN}, {INT32_MAX}), 2'500'000);
        EXPECT_EQ(calendar.WorkDayDiff({LastDay}, {INT32_MAX}), 1); // a Friday
        EXPECT_EQ(calendar.WorkDayDiff({INT32_MAX}, {INT32_MIN}), 0);
    }
    EXPECT_EQ(calendar.LastOfMonth({INT32_MAX}).Day, LastDay);
    EXPECT_EQ(calendar.FirstOfMonth({INT32_MIN}).Day, FirstDay);
    EXPECT_EQ(calendar.Dayname({INT32_MAX}), "Silvester");
}

TEST_F(WorkCalendarTest, EndsOfMonths) {
    calendar.Settings().Allow = {};
    EXPECT_EQ(calendar.FirstOfMonth(On(2024, 6, 20)), On(2024, 6, 3)); // the 1st is a Saturday
    EXPECT_EQ(calendar.LastOfMonth(On(2024, 3, 2)), On(2024, 3, 28));  // before Good Friday and Easter
    EXPECT_EQ(calendar.FirstOfMonth(), On(2024, 12, 2));
    EXPECT_EQ(calendar.LastOfMonth({}), On(2024, 12, 31));
    BlockEverything();
    calendar.Settings().MinDate = On(2024, 12, 3);
    calendar.Settings().MaxDate = On(2024, 12, 30);
    EXPECT_EQ(calendar.FirstOfMonth(), On(2024, 12, 3));
    EXPECT_EQ(calendar.LastOfMonth(), On(2024, 12, 30));
}

TEST_F(WorkCalendarTest, NearestAllowedDate) {
    auto& settings = calendar.Settings();
    settings.Allow.Saturday = settings.Allow.Sunday = false;
    EXPECT_EQ(calendar.NearestAllowedDate({On(2024, 12, 7).Day, 500}), On(2024, 12, 9)); // forward
    EXPECT_EQ(calendar.NearestAllowedDate(On(2024, 12, 1)), On(2024, 11, 29));           // back
    settings.MaxDate = On(2024, 12, 8);
    EXPECT_EQ(calendar.NearestAllowedDate(On(2024, 12, 20)), On(2024, 12, 6)); // turns at the limit
    settings.MinDate = On(2024, 11, 30);
    EXPECT_EQ(calendar.NearestAllowedDate(On(2020, 1, 1)), On(2024, 12, 2));
    settings.MinDate = On(2025, 6, 1); // later than MaxDate, which then decides
    EXPECT_EQ(calendar.NearestAllowedDate(On(2025, 1, 1)), On(2024, 12, 6));
}

TEST_F(WorkCalendarTest, WeeksGiveWayToDays) {
    auto& settings = calendar.Settings();
    settings.Allow.Sunday = false;
    EXPECT_EQ(calendar.NearestAllowedDate(On(2024, 12, 8), DateUnit::Week), On(2024, 12, 9));
    EXPECT_EQ(calendar.NearestAllowedDate(On(2024, 12, 1), DateUnit::Week), On(2024, 11, 30));
    settings.Allow.Holiday = false;
    EXPECT_EQ(calendar.NearestAllowedDate(On(2024, 12, 25), DateUnit::Week), On(2025, 1, 8)); // past New Year
}

TEST_F(WorkCalendarTest, SearchesEndWhenNothingIsAllowed) {
    BlockEverything();
    auto& settings = calendar.Settings();
    EXPECT_EQ(calendar.NearestAllowedDate(On(2026, 3, 3)), On(2026, 3, 3));
    EXPECT_EQ(calendar.NearestAllowedDate(On(2020, 3, 3), DateUnit::Week), On(2020, 3, 3));
    settings.MaxDate = settings.MinDate = On(2024, 6, 1);
    EXPECT_EQ(calendar.NearestAllowedDate(On(2026, 3, 3)), On(2024, 6, 1));
    EXPECT_EQ(calendar.WorkDayDiff({FirstDay}, {LastDay}), 0);
    EXPECT_EQ(calendar.WorkDayAdd(On(2024, 6, 1), 1).Day, LastDay);
    EXPECT_EQ(calendar.WorkDayAdd(On(2024, 6, 1), -1).Day, FirstDay);
}

TEST_F(WorkCalendarTest, TenYearsAreSearchedAndNoMore) {
    BlockEverything();
    for (const auto& rule : *calendar.Holidays())
        rule->SetLastYear(2040);
    calendar.ResolveHolidays(calendar.CurrentDate());
    EXPECT_EQ(calendar.NearestAllowedDate(On(2026, 3, 3)), On(2026, 3, 3)); // nor from MaxDate back
    EXPECT_EQ(calendar.NearestAllowedDate(On(2032, 3, 3)), On(2041, 1, 1));
}

TEST_F(WorkCalendarTest, AddingLeavesTheRulesAtTheLastDayAsked) {
    calendar.WorkDayAdd(On(2024, 12, 6), 250);
    EXPECT_EQ(calendar.Easter(), On(2025, 4, 20));
    calendar.WorkDayAdd(On(2024, 12, 6), INT32_MAX);
    EXPECT_EQ(PartsFromDay(calendar.Easter().Day).Year, 9999);
    calendar.WorkDayDiff(On(1900, 1, 1), On(1900, 2, 1)); // counting comes back
    EXPECT_EQ(calendar.Easter(), On(2024, 3, 31));
}

TEST_F(WorkCalendarTest, CurrentDateIsAssignedThroughTheSearch) {
    listener.Take();
    calendar.SetAllowSaturday(false);
    EXPECT_EQ(listener.Take(), "AllowSaturday ");
    calendar.SetCurrentDate(On(2024, 12, 7));
    EXPECT_EQ(calendar.CurrentDate(), On(2024, 12, 8));
    EXPECT_EQ(listener.Take(), "from 6 ");
    calendar.SetAllowSunday(false); // moves off the day, which the listener hears of
    EXPECT_EQ(calendar.CurrentDate(), On(2024, 12, 9));
    EXPECT_EQ(listener.Take(), "AllowSunday from 8 ");
    calendar.SetCurrentDate(On(2024, 12, 9));
    EXPECT_EQ(listener.Take(), "");
}

TEST_F(WorkCalendarTest, SynchronisingReplacesRules) {
    const DayFlags allow{true, false, true};
    calendar.Holidays()->Add({.Key = "mine", .Month = 12, .Day = 10});
    const auto held = calendar.Holidays()->Item("Neujahr");
    EXPECT_TRUE(
        calendar.Synchronise({.Allow = &allow, .Work = {false, true, false}, .AutoHolidays = qgahdAustria}));
    EXPECT_EQ(listener.Take(), "AllowHoliday AllowSaturday AllowSunday WorkHoliday WorkSaturday WorkSunday "
                               "AutoHolidays reloaded ");
    EXPECT_EQ(calendar.Holidays()->Count(), 18);
    EXPECT_TRUE(calendar.IsWorkDay(On(2024, 12, 10)));
    EXPECT_FALSE(calendar.IsAllowed(On(2024, 12, 7)));
    EXPECT_TRUE(calendar.IsWorkDay(On(2024, 12, 7)));
    held->SetEnabled(false); // a rule of the list that was
    EXPECT_FALSE(calendar.IsWorkDay(On(2026, 1, 1)));
    calendar.Synchronise({.AutoHolidays = qgahdNone});
    EXPECT_TRUE(calendar.IsWorkDay(On(2024, 12, 25)));
    EXPECT_FALSE(calendar.Settings().Allow.Saturday); // kept without a cell
}

TEST_F(WorkCalendarTest, ReloadingAlwaysGivesFreshRules) {
    const auto check = [&](const std::function<void()>& spoil) {
        spoil();
        calendar.SetAutoHolidays(qgahdGermany);
        EXPECT_EQ(calendar.Holidays()->Count(), 26);
        EXPECT_TRUE(calendar.Holidays()->Item("Neujahr")->Enabled());
        EXPECT_FALSE(calendar.IsWorkDay(On(2027, 1, 1)));
        EXPECT_TRUE(calendar.IsWorkDay(On(2027, 1, 6)));
    };
    const auto rule = [&](const char* key) { return calendar.Holidays()->Item(key); };
    check([&] { rule("Neujahr")->SetEnabled(false); });
    check([&] { calendar.Holidays()->Remove("Neujahr"); });
    check([&] { calendar.Holidays()->Clear(); });
    check([&] { calendar.SetHolidays(std::make_shared<Holidays>()); });
    calendar.SetAutoHolidays(qgahdGermany);
    const auto held = rule("Neujahr");
    calendar.SetAutoHolidays(qgahdGermany);
    held->SetEnabled(false); // no longer a rule of this calendar
    EXPECT_FALSE(calendar.IsWorkDay(On(2029, 1, 1)));
    EXPECT_NE(rule("Neujahr"), held);
    calendar.Settings().ConfigGermany = "0";
    calendar.SetAutoHolidays(qgahdGermany);
    EXPECT_TRUE(calendar.IsWorkDay(On(2027, 1, 1)));
    EXPECT_FALSE(calendar.IsWorkDay(On(2027, 1, 6))); // missing characters enable
}

TEST_F(WorkCalendarTest, SaveKeepsEnabledStatesByKey) {
    auto& rules = *calendar.Holidays();
    rules.Item("Fronleichnam")->SetEnabled(true);
    rules.Remove("Neujahr");
    rules.Add({.Key = "mine", .Month = 1, .Day = 2, .Enabled = false});
    listener.Take();
    calendar.Save();
    EXPECT_EQ(listener.Take(), "ConfigGermany ");
    EXPECT_EQ(calendar.Settings().ConfigGermany, "10000111111110001000000110");
    calendar.SetAutoHolidays(AutoHolidayConstants{42});
    calendar.Holidays()->Item("Silvester")->SetEnabled(false);
    calendar.Save();
    EXPECT_EQ(calendar.Settings().ConfigEurope, "111111110");
    calendar.SetAutoHolidays(qgahdNone);
    calendar.Holidays()->Add({.Key = "x", .Enabled = false});
    calendar.Save();
    EXPECT_EQ(calendar.Settings().ConfigEurope, "111111110");
    calendar.Settings().ConfigAustria = "é";
    calendar.SetAutoHolidays(qgahdAustria);
    calendar.Holidays()->Clear();
    calendar.Save();
    EXPECT_EQ(calendar.Settings().ConfigAustria, "é11111111111111111");
}

TEST_F(WorkCalendarTest, UserDatesOnlyWhileTheHostRuns) {
    listener.Running = false;
    ExpectError(382, "QGCalendar:UserDate3 Property Let", [&] { calendar.SetUserDate3(On(2024, 5, 5)); });
    EXPECT_EQ(calendar.UserDate3(), DateTime{});
    listener.Running = true;
    calendar.SetUserDate3(On(2024, 5, 5));
    EXPECT_EQ(listener.Take(), "UserDate3 ");
}

TEST(WorkCalendar, SurvivesListenersThatEndIt) {
    for (const bool synchronise : {false, true}) {
        Listener listener;
        auto calendar = std::make_unique<WorkCalendar>(On(2024, 12, 7), &listener);
        calendar->Settings().Allow.Saturday = synchronise; // the reload alone finds a day to leave
        listener.OnDate = [&] { calendar.reset(); };
        const DayFlags allow{true, false, true};
        WorkCalendar& ending = *calendar;
        EXPECT_FALSE(synchronise ? ending.Synchronise({.Allow = &allow})
                                 : ending.SetAutoHolidays(qgahdAustria));
        EXPECT_EQ(calendar, nullptr);
    }
}

/// The worst that arguments can ask for, each from a calendar that knows nothing yet: it must end. How fast
/// is for the benchmarks to say; a machine busy with sanitizers gets seconds.
TEST(WorkCalendar, NoArgumentSearchesWithoutEnd) {
    using Question = std::function<void(WorkCalendar&)>;
    const Question questions[] = {
        [](WorkCalendar& calendar) { calendar.WorkDayDiff({INT32_MIN}, {INT32_MAX}); },
        [](WorkCalendar& calendar) { calendar.WorkDayAdd({INT32_MIN}, INT32_MAX); },
        [](WorkCalendar& calendar) { calendar.WorkDayAdd({INT32_MAX}, INT32_MIN); },
        [](WorkCalendar& calendar) { calendar.NearestAllowedDate({INT32_MAX}, DateUnit::Week); },
        [](WorkCalendar& calendar) { calendar.LastOfMonth({INT32_MAX}); }};
    for (const Question& question : questions) {
        auto best = std::chrono::steady_clock::duration::max();
        for (int attempt = 0; attempt < 5; ++attempt) { // the machine may be busy with something else
            WorkCalendar calendar(On(2024, 12, 6));
            calendar.SetAutoHolidays(qgahdSwitzerland);
            calendar.Settings().Allow = {};
            const auto start = std::chrono::steady_clock::now();
            question(calendar);
            best = std::min(best, std::chrono::steady_clock::now() - start);
        }
        EXPECT_LT(best, std::chrono::seconds(5));
    }
}

} // namespace quillgrid::test
