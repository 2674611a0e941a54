#include "quillgrid/grid/GridCalendar.h"

#include "quillgrid/calendar/CalendarPropertyTable.h"

namespace quillgrid {

void GridCalendar::Start() {
    TakeSettings();
    calendar_.SetAutoHolidays(state_.Settings.AutoHolidays);
    calendar_.SetCurrentDate(ports_.Time.Now());
}

void GridCalendar::TakeSettings() {
    const GridSettings& settings = state_.Settings;
    CalendarSettings& mine = calendar_.Settings();
    mine.FirstDayOfWeek = settings.FirstDayOfWeek;
    mine.FirstWeekOfYear = settings.FirstWeekOfYear;
    mine.Work = {settings.WorkHoliday, settings.WorkSaturday, settings.WorkSunday};
}

void GridCalendar::Synchronise() {
    const GridSettings& settings = state_.Settings;
    const Cell* cell = state_.Working ? state_.Working : state_.Current.get();
    DayFlags allow;
    if (cell) allow = {cell->AllowHoliday(), cell->AllowSaturday(), cell->AllowSunday()};
    calendar_.Synchronise({.Allow = cell ? &allow : nullptr,
                           .Work = {settings.WorkHoliday, settings.WorkSaturday, settings.WorkSunday},
                           .AutoHolidays = settings.AutoHolidays});
}

void GridCalendar::ShareConfigWith(CalendarSettings& their) const {
    const CalendarSettings& mine = calendar_.Settings();
    their.ConfigGermany = mine.ConfigGermany;
    their.ConfigAustria = mine.ConfigAustria;
    their.ConfigSwitzerland = mine.ConfigSwitzerland;
    their.ConfigEurope = mine.ConfigEurope;
}

void GridCalendar::Read(const PropertyBag& bag) {
    CalendarSettings& mine = calendar_.Settings();
    CalendarValues values{{}, mine};
    ReadCalendarValues(bag, ports_.UserLocale, {}, values);
    mine.ConfigGermany = std::move(values.Days.ConfigGermany);
    mine.ConfigAustria = std::move(values.Days.ConfigAustria);
    mine.ConfigSwitzerland = std::move(values.Days.ConfigSwitzerland);
    mine.ConfigEurope = std::move(values.Days.ConfigEurope);
    calendar_.RestoreAutoHolidays(state_.Settings.AutoHolidays);
    if (ports_.Pads) ports_.Pads->DatePad().ReadProperties(bag);
}

void GridCalendar::Write(PropertyBag& bag) {
    if (!ports_.Pads) return WriteCalendarValues(bag, {{}, calendar_.Settings()}, {});
    QGCalendar& pad = ports_.Pads->DatePad();
    ShareConfigWith(pad.Calendar().Settings());
    pad.WriteProperties(bag);
}

void GridCalendar::ShareWith(QGCalendar& pad, const Cell& cell) {
    Synchronise();
    const GridSettings& settings = state_.Settings;
    WorkCalendar& theirs = pad.Calendar();
    CalendarSettings& their = theirs.Settings();
    their.FirstDayOfWeek = settings.FirstDayOfWeek;
    their.FirstWeekOfYear = settings.FirstWeekOfYear;
    ShareConfigWith(their);
    theirs.SetHolidays(calendar_.Holidays());
    theirs.SetUserDate1(calendar_.UserDate1());
    theirs.SetUserDate2(calendar_.UserDate2());
    theirs.SetUserDate3(calendar_.UserDate3());
    const DayFlags allow{cell.AllowHoliday(), cell.AllowSaturday(), cell.AllowSunday()};
    theirs.Synchronise({.Allow = &allow,
                        .Work = {settings.WorkHoliday, settings.WorkSaturday, settings.WorkSunday},
                        .AutoHolidays = settings.AutoHolidays});
}

bool GridCalendar::IsWorkDay(DateTime date) {
    Synchronise();
    return calendar_.IsWorkDay(date);
}

std::int32_t GridCalendar::WorkDayDiff(DateTime date1, DateTime date2) {
    Synchronise();
    calendar_.SetCurrentDate(date1);
    return calendar_.WorkDayDiff(date1, date2);
}

DateTime GridCalendar::WorkDayAdd(DateTime date1, std::int32_t days) {
    Synchronise();
    calendar_.SetCurrentDate(date1);
    return calendar_.WorkDayAdd(date1, days);
}

std::string GridCalendar::Dayname(DateTime date) {
    Synchronise();
    return calendar_.Dayname(date);
}

void GridCalendar::SetCurrentDate(DateTime date) {
    Synchronise();
    calendar_.SetCurrentDate(date);
}

} // namespace quillgrid
