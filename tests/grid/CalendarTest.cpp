// The calendar as the control hands it out.
#include "quillgrid/hosts/headless/HeadlessHost.h"
#include "quillgrid/hosts/headless/MemoryBag.h"

#include <gtest/gtest.h>

namespace quillgrid {
namespace {

using headless::HeadlessHost;

DateTime On(int year, int month, int day) {
    return {*DayFromDate(year, month, day), 0};
}

TEST(GridCalendar, StartsTodayWithTheRulesOfItsSettings) {
    headless::MemoryBag bag;
    bag.Write("AutoHolidays", Variant(std::int32_t{qgahdAustria}), Variant());
    bag.Write("WorkSaturday", Variant(true), Variant());
    const HeadlessHost host({300, 200}, "de-DE", true, &bag);
    EXPECT_EQ(host.Grid->CalendarDate().Day, On(2026, 3, 25).Day);
    EXPECT_EQ(host.Grid->Holidays()->Count(), 18);
    EXPECT_TRUE(host.Grid->IsWorkDay(On(2026, 3, 28)));
    EXPECT_EQ(HeadlessHost().Grid->Holidays()->Count(), 26);
}

TEST(GridCalendar, CountsUnderTheSettingsOfTheMoment) {
    HeadlessHost host;
    Quillgrid& grid = *host.Grid;
    EXPECT_FALSE(grid.IsWorkDay(On(2026, 12, 25)));
    EXPECT_EQ(grid.Dayname(On(2026, 3, 25)), "Mittwoch");
    EXPECT_EQ(grid.WorkDayDiff(On(2026, 12, 21), On(2026, 12, 31)), 8);
    EXPECT_EQ(grid.CalendarDate().Day, On(2026, 12, 21).Day);
    EXPECT_EQ(grid.WorkDayAdd(On(2026, 12, 24), 1).Day, On(2026, 12, 28).Day);
    grid.SetWorkHoliday(true);
    EXPECT_TRUE(grid.IsWorkDay(On(2026, 12, 25)));
    grid.SetWorkHoliday(false);
    grid.SetAutoHolidays(qgahdNone);
    EXPECT_TRUE(grid.IsWorkDay(On(2026, 12, 25)));
}

TEST(GridCalendar, RulesOfTheHostLastUntilTheNextQuestion) {
    HeadlessHost host;
    Quillgrid& grid = *host.Grid;
    grid.Holidays()->Add({.Key = "Stadtfest", .Month = 7, .Day = 1});
    EXPECT_EQ(grid.Holidays()->Count(), 27);
    grid.IsWorkDay(On(2026, 7, 1));
    EXPECT_EQ(grid.Holidays()->Count(), 26);
}

// The bag of the form has no keys for them.
TEST(GridCalendar, RulesThatAreOnAndTheLooksOfThePadHaveABagOfTheirOwn) {
    headless::MemoryBag kept;
    HeadlessHost host;
    EXPECT_FALSE(host.Grid->IsWorkDay(On(2026, 1, 1)));
    host.Grid->Holidays()->Item("Neujahr")->SetEnabled(false);
    host.Grid->SaveHolidays();
    EXPECT_TRUE(host.Grid->IsWorkDay(On(2026, 1, 1)));
    EXPECT_FALSE(host.Grid->IsWorkDay(On(2026, 12, 25)));
    host.Pads->DatePad().SetForeColorSunday(Rgb(1, 2, 3));
    host.Grid->WriteCalendar(kept);
    HeadlessHost other;
    EXPECT_FALSE(other.Grid->IsWorkDay(On(2026, 1, 1)));
    other.Grid->ReadCalendar(kept);
    EXPECT_TRUE(other.Grid->IsWorkDay(On(2026, 1, 1)));
    EXPECT_FALSE(other.Grid->IsWorkDay(On(2026, 12, 25)));
    EXPECT_EQ(other.Pads->DatePad().ForeColorSunday(), Rgb(1, 2, 3));
    other.Grid->ReadCalendar(headless::MemoryBag());
    EXPECT_FALSE(other.Grid->IsWorkDay(On(2026, 1, 1)));
}

TEST(GridCalendar, DatesAreThoseThatTheCurrentCellAllows) {
    HeadlessHost host;
    Quillgrid& grid = *host.Grid;
    const auto cell = grid.Add({.CellTemplate = qgctDate});
    grid.Refresh();
    cell->SetAllowSaturday(false);
    cell->SetAllowSunday(false);
    grid.SetCalendarDate(On(2026, 3, 28));
    EXPECT_EQ(grid.CalendarDate().Day, On(2026, 3, 30).Day);
    cell->SetAllowSaturday(true);
    grid.SetCalendarDate(On(2026, 3, 28));
    EXPECT_EQ(grid.CalendarDate().Day, On(2026, 3, 28).Day);
}

TEST(GridCalendar, UserDatesAreSetAtRunTimeOnly) {
    HeadlessHost host;
    host.Grid->SetUserDate2(On(2026, 5, 9));
    EXPECT_EQ(host.Grid->UserDate2().Day, On(2026, 5, 9).Day);
    HeadlessHost design({300, 200}, "de-DE", false);
    try {
        design.Grid->SetUserDate1(On(2026, 5, 9));
        FAIL() << "set at design time";
    } catch (const ControlError& error) {
        EXPECT_EQ(error.Code(), 382);
        EXPECT_EQ(error.Number(), 0x80040000U + 382);
        EXPECT_FALSE(error.Description().empty());
    }
}

} // namespace
} // namespace quillgrid
