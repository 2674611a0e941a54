#pragma once

#include "quillgrid/calendar/QGCalendar.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/GridState.h"

namespace quillgrid {

/// The control's calendar: holidays and work days under the settings of the control and of its current cell.
class GridCalendar : private CalendarOwner {
public:
    GridCalendar(const GridState& state, const GridPorts& ports)
        : state_(state), ports_(ports), calendar_(ports.Time.Now(), this) {}

    /// Start-up: today, and everything that the control keeps.
    void Start();
    /// The week's rules and the work flags, as the control keeps them.
    void TakeSettings();

    bool IsWorkDay(DateTime date);
    std::int32_t WorkDayDiff(DateTime date1, DateTime date2);
    DateTime WorkDayAdd(DateTime date1, std::int32_t days);
    std::string Dayname(DateTime date);
    void SetCurrentDate(DateTime date);
    WorkCalendar& Calendar() { return calendar_; }
    /// What the control's own bag does not hold: the rules that are on, and the looks of the pad.
    void Read(const PropertyBag& bag);
    void Write(PropertyBag& bag);
    /// The enabled states of the rules become those of their preset, beyond the next question.
    void Save() { calendar_.Save(); }
    /// Gives a pad the rules, flags and days of this calendar, for a cell.
    void ShareWith(QGCalendar& pad, const Cell& cell);

private:
    void ShareConfigWith(CalendarSettings& their) const;
    /// Flags and preset anew before each question, so that rules of the host last until then.
    void Synchronise();

    const Locale& UserLocale() const override { return ports_.UserLocale; }
    bool UserMode() const override { return state_.UserMode; }
    void PropertyChanged(std::string_view) override {} // the control reports its own
    void CurrentDateAssigned(DateTime) override {}
    void HolidaysReloaded() override {}

    const GridState& state_;
    const GridPorts& ports_;
    WorkCalendar calendar_;
};

} // namespace quillgrid
