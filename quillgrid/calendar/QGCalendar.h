#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/CalendarCommands.h"
#include "quillgrid/calendar/CalendarMouse.h"
#include "quillgrid/calendar/CalendarOwner.h"
#include "quillgrid/calendar/CalendarPadState.h"
#include "quillgrid/platform/PropertyBag.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

class Canvas;

/// A month to pick a date from: days with their holidays and date ranges, week numbers, a caption whose
/// buttons and menus step through months and years, a status line that names the current day.
///
/// A property shows at the next `Refresh`; at design time at once. Handlers of events and of the container's
/// notices may destroy the pad.
class QUILLGRID_EXPORT QGCalendar final : private CalendarOwner, private CalendarCommands {
public:
    /// `CurrentDate` became another day, while the pad is enabled.
    quillgrid::Event<> DateChange;
    /// The user is done: a day was clicked, or a place outside; Enter, Space or Escape.
    quillgrid::Event<> DateClick;

    /// With its defaults, and not yet laid out: `Refresh` does that.
    explicit QGCalendar(CalendarPorts ports);
    ~QGCalendar() override;
    QGCalendar(const QGCalendar&) = delete;
    QGCalendar& operator=(const QGCalendar&) = delete;

    /// The defaults of a new pad, today among them; its rules are the German ones.
    void InitProperties();
    /// What the bag lacks gets its default, what it holds in an unusable form stays as it is. The date is the
    /// one that was kept, even on a day that may not be picked. Lays out and paints.
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    /// Looks at the calendar, the properties and the locale anew, lays out and paints; nothing while `Redraw`
    /// is false.
    void Refresh();
    bool Redraw() const { return state_.Redraw; }
    void SetRedraw(bool redraw) { state_.Redraw = redraw; }

    /// Whether the current day is highlighted and named below. True; false for months beside the one that has
    /// the day. Not kept; shows at the next `Refresh`.
    bool MarksDate() const { return state_.MarksDate; }
    void SetMarksDate(bool marks) { state_.MarksDate = marks; }

    /// Every navigation ends here: the date becomes the nearest one that may be picked, within `MinDate` and
    /// `MaxDate`.
    DateTime CurrentDate() const { return state_.Days.CurrentDate(); }
    void SetCurrentDate(DateTime date) { state_.Days.SetCurrentDate(date); }
    /// Its parts. A day that the other month lacks becomes the month's last one; a year's or a month's parts
    /// outside their ranges run on into the next (29 February into 1 March, month 13 into January).
    std::int16_t CurrentMonth() const;
    void SetCurrentMonth(std::int16_t month);
    std::int16_t CurrentYear() const;
    void SetCurrentYear(std::int16_t year);
    std::int16_t CurrentDay() const;
    void SetCurrentDay(std::int16_t day);

    /// Arrows, Page Up and Down, Home and End move the date; the code becomes 0 then.
    void KeyDown(std::int32_t& keyCode, std::int32_t shift = 0);
    /// Enter, Space and Escape say that the user is done. Every character is used up and becomes 0.
    void KeyPress(std::int32_t& character);
    /// Nothing, like the keys, while the pad is not enabled. Points outside of the surface may come.
    void MouseDown(Point point, PadButton button = PadButton::Left);
    void MouseMove(Point point);
    void MouseUp(Point point);
    void MouseLeave() { mouse_.Leave(); }
    /// What only clicks do otherwise, for keys of the host's: the menus of the caption, and today. Nothing
    /// while the pad is not enabled.
    void OpenMonths();
    void OpenYears();
    void PickToday();
    /// The window left the screen: what is still pressed or repeating ends.
    void Hidden();
    /// The window has another size.
    void Resize() { Refresh(); }
    /// Paints what of the pad lies in an area.
    void Paint(Canvas& canvas, const Rect& dirty) const;

    Surface& hWnd() { return state_.Ports.Window; }

    /// The name of a day's holiday; "" for a day that is none.
    std::string HolidayName(DateTime date);
    /// The key of the first range that holds the date; "" when there is none.
    std::string TimeZone(DateTime date) const;
    quillgrid::TimeZones& TimeZones() { return state_.Ranges; }
    /// Holidays, work days, and everything else that dates have beside their looks.
    WorkCalendar& Calendar() { return state_.Days; }
    const WorkCalendar& Calendar() const { return state_.Days; }

    /// While false no DateChange is raised, and neither keys nor the mouse do anything.
    bool Enabled() const { return state_.Settings.Enabled; }
    void SetEnabled(bool enabled);
    /// Published for the menu of the right mouse button, which has no entries.
    bool ShowMenu() const { return state_.Settings.ShowMenu; }
    void SetShowMenu(bool show) { Assign(state_.Settings.ShowMenu, show, "ShowMenu"); }
    bool ShowButtons() const { return state_.Settings.ShowButtons; }
    void SetShowButtons(bool show) { Assign(state_.Settings.ShowButtons, show, "ShowButtons"); }
    const quillgrid::Font& Font() const { return state_.Settings.Font; }
    void SetFont(quillgrid::Font font) { Assign(state_.Settings.Font, std::move(font), "Font"); }

    /// Neither moves `CurrentDate`; they bind the next time that it is set.
    DateTime MinDate() const { return Days().MinDate; }
    void SetMinDate(DateTime date) { Assign(Days().MinDate, date, "MinDate"); }
    DateTime MaxDate() const { return Days().MaxDate; }
    void SetMaxDate(DateTime date) { Assign(Days().MaxDate, date, "MaxDate"); }
    /// 0 follows the locale, and so does a value that means nothing.
    DayOfWeekConstants FirstDayOfWeek() const { return Days().FirstDayOfWeek; }
    void SetFirstDayOfWeek(DayOfWeekConstants day) { Assign(Days().FirstDayOfWeek, day, "FirstDayOfWeek"); }
    FirstWeekOfYearConstants FirstWeekOfYear() const { return Days().FirstWeekOfYear; }
    void SetFirstWeekOfYear(FirstWeekOfYearConstants week) {
        Assign(Days().FirstWeekOfYear, week, "FirstWeekOfYear");
    }

    /// What may be picked, and what counts as a work day. The first two move `CurrentDate` off a day that may
    /// no longer be picked.
    bool AllowSunday() const { return Days().Allow.Sunday; }
    void SetAllowSunday(bool allow) { state_.Days.SetAllowSunday(allow); }
    bool AllowSaturday() const { return Days().Allow.Saturday; }
    void SetAllowSaturday(bool allow) { state_.Days.SetAllowSaturday(allow); }
    bool AllowHoliday() const { return Days().Allow.Holiday; }
    void SetAllowHoliday(bool allow) { state_.Days.SetAllowHoliday(allow); }
    bool WorkSunday() const { return Days().Work.Sunday; }
    void SetWorkSunday(bool work) { state_.Days.SetWorkSunday(work); }
    bool WorkSaturday() const { return Days().Work.Saturday; }
    void SetWorkSaturday(bool work) { state_.Days.SetWorkSaturday(work); }
    bool WorkHoliday() const { return Days().Work.Holiday; }
    void SetWorkHoliday(bool work) { state_.Days.SetWorkHoliday(work); }
    AutoHolidayConstants AutoHolidays() const { return Days().AutoHolidays; }
    void SetAutoHolidays(AutoHolidayConstants preset) { state_.Days.SetAutoHolidays(preset); }
    /// Which rules of a preset are on: one "1" or "0" for each, in their order; what is missing is on. Loads
    /// the rules of the present preset anew.
    const std::string& ConfigGermany() const { return Days().ConfigGermany; }
    void SetConfigGermany(std::string config);
    const std::string& ConfigAustria() const { return Days().ConfigAustria; }
    void SetConfigAustria(std::string config);
    const std::string& ConfigSwitzerland() const { return Days().ConfigSwitzerland; }
    void SetConfigSwitzerland(std::string config);
    /// Of the international preset.
    const std::string& ConfigEurope() const { return Days().ConfigEurope; }
    void SetConfigEurope(std::string config);

    /// Colours that cannot be read on what they stand on are darkened or lightened on the screen.
    Colour BackColor() const { return state_.Settings.BackColor; }
    void SetBackColor(Colour colour) { Assign(state_.Settings.BackColor, colour, "BackColor"); }
    Colour ForeColor() const { return state_.Settings.ForeColor; }
    void SetForeColor(Colour colour) { Assign(state_.Settings.ForeColor, colour, "ForeColor"); }
    Colour ForeColorSunday() const { return state_.Settings.ForeColorSunday; }
    void SetForeColorSunday(Colour colour) {
        Assign(state_.Settings.ForeColorSunday, colour, "ForeColorSunday");
    }
    Colour ForeColorHoliday() const { return state_.Settings.ForeColorHoliday; }
    void SetForeColorHoliday(Colour colour) {
        Assign(state_.Settings.ForeColorHoliday, colour, "ForeColorHoliday");
    }
    Colour ForeColorSaturDay() const { return state_.Settings.ForeColorSaturDay; }
    void SetForeColorSaturDay(Colour colour) {
        Assign(state_.Settings.ForeColorSaturDay, colour, "ForeColorSaturDay");
    }
    Colour BackColorSunday() const { return state_.Settings.BackColorSunday; }
    void SetBackColorSunday(Colour colour) {
        Assign(state_.Settings.BackColorSunday, colour, "BackColorSunday");
    }
    Colour BackColorSaturday() const { return state_.Settings.BackColorSaturday; }
    void SetBackColorSaturday(Colour colour) {
        Assign(state_.Settings.BackColorSaturday, colour, "BackcolorSaturday");
    }
    Colour BackColorWeek() const { return state_.Settings.BackColorWeek; }
    void SetBackColorWeek(Colour colour) { Assign(state_.Settings.BackColorWeek, colour, "BackColorWeek"); }
    Colour BackColorGrid() const { return state_.Settings.BackColorGrid; }
    void SetBackColorGrid(Colour colour) { Assign(state_.Settings.BackColorGrid, colour, "BackColorGrid"); }
    Colour ForeColorWeek() const { return state_.Settings.ForeColorWeek; }
    void SetForeColorWeek(Colour colour) { Assign(state_.Settings.ForeColorWeek, colour, "ForeColorWeek"); }
    Colour ForeColorDaynames() const { return state_.Settings.ForeColorDaynames; }
    void SetForeColorDaynames(Colour colour) {
        Assign(state_.Settings.ForeColorDaynames, colour, "ForeColorDaynames");
    }

    /// Names, formats and the week follow it from the next `Refresh` on.
    void SetLocale(Locale locale) { state_.Ports.UserLocale = std::move(locale); }
    /// What the pad shows.
    const CalendarPadLayout& Layout() const { return state_.Layout; }
    const MonthView& View() const { return state_.View; }
    /// The smallest surface that shows all of the pad, under its present font and locale.
    Size NeededSize() const;
    /// As high, and wide enough for the longest day name: the pad's own width goes by the first one, and
    /// others would be cut short in it.
    Size RoomySize() const;

private:
    const Locale& UserLocale() const override { return state_.Ports.UserLocale; }
    bool UserMode() const override { return userMode_; }
    void PropertyChanged(std::string_view key) override;
    void CurrentDateAssigned(DateTime before) override;
    void HolidaysReloaded() override;

    bool GoTo(DateTime date) override { return state_.Days.SetCurrentDate(date); }
    bool Confirm() override;

    CalendarSettings& Days() { return state_.Days.Settings(); }
    const CalendarSettings& Days() const { return state_.Days.Settings(); }
    template <typename T>
    void Assign(T& field, T value, std::string_view key) {
        field = std::move(value);
        PropertyChanged(key);
    }
    void Configure(std::string CalendarSettings::*preset, std::string config, std::string_view key);
    CalendarNames NamesNow() const;
    void ShowMonth();
    void ShowDate();

    CalendarPadState state_;
    CalendarMouse mouse_;
    bool userMode_;
};

} // namespace quillgrid
