#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/CalendarOwner.h"
#include "quillgrid/calendar/CalendarSettings.h"
#include "quillgrid/calendar/DateSearch.h"
#include "quillgrid/calendar/HolidayBook.h"
#include "quillgrid/calendar/HolidayPresets.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillgrid {

/// Public holidays, the days that may be picked, and the arithmetic of work days, in the years 100 to 9999; a
/// date outside them counts as the nearest inside. It comes with the German rules; a program of its own picks
/// others with `SetAutoHolidays`, adds to `Holidays()` and then calls `ResolveHolidays`.
///
/// Rules are resolved for one year and condensed for one month at a time. A change of a rule or a user date
/// shows when another year or month is examined, after `ResolveHolidays`, or after the next reload.
class QUILLGRID_EXPORT WorkCalendar {
public:
    /// `owner` may be null; it is not told of anything that happens here.
    explicit WorkCalendar(DateTime currentDate = {}, CalendarOwner* owner = nullptr);
    WorkCalendar(const WorkCalendar&) = delete;
    WorkCalendar& operator=(const WorkCalendar&) = delete;

    CalendarSettings& Settings() { return settings_; }
    const CalendarSettings& Settings() const { return settings_; }
    /// Null before the owner goes.
    void SetOwner(CalendarOwner* owner) { owner_ = owner; }

    /// Whether a day (`CurrentDate` when not given) is worked on.
    bool IsWorkDay(std::optional<DateTime> date = std::nullopt);
    /// Whether a day may be picked. `MinDate` and `MaxDate` have no say here.
    bool IsAllowed(DateTime date);
    /// Work days from `date1` to `date2`, both included; 0 when `date1` is the later one.
    std::int32_t WorkDayDiff(DateTime date1, DateTime date2);
    /// The date that lies so many work days after (before) `date1`, which itself does not count and keeps its
    /// time. Where the calendar ends earlier, its last (first) day.
    DateTime WorkDayAdd(DateTime date1, std::int32_t days);
    /// The first day from the start of the date's month on, or the last day back from its end, that may be
    /// picked, even if in another month; date 0 means `CurrentDate`. When there is none within ten years, the
    /// month's first (last) day, limited to `MinDate` and `MaxDate`.
    DateTime FirstOfMonth(DateTime date = {});
    DateTime LastOfMonth(DateTime date = {});
    /// The name of a day's holiday, or the long name of its weekday; date 0 means `CurrentDate`.
    std::string Dayname(DateTime date);
    /// The day that may be picked, within `MinDate` to `MaxDate` if possible, which comes first after `date`,
    /// or before it when it lies before `CurrentDate`. When there is none, `date` within these limits.
    DateTime NearestAllowedDate(DateTime date, DateUnit unit = DateUnit::Day);
    /// Easter Sunday of the year for which the rules were last resolved.
    DateTime Easter() const;

    DateTime CurrentDate() const { return settings_.CurrentDate; }
    /// Goes to the nearest day that may be picked. False when that ended the calendar, here and below.
    bool SetCurrentDate(DateTime date);

    AutoHolidayConstants AutoHolidays() const { return settings_.AutoHolidays; }
    /// The rules of a preset that was kept; `CurrentDate` stays, and nobody is told.
    void RestoreAutoHolidays(AutoHolidayConstants preset);
    /// Loads the preset's rules in place of all others, even when it is the present one. Its tables stand as
    /// they are, whatever the law of a state or a year says.
    bool SetAutoHolidays(AutoHolidayConstants preset);
    /// Keeps which of the preset's rules are enabled in the preset's string of `Settings()`. Rules that are
    /// missing keep their character; without a preset nothing happens.
    void Save();

    const std::shared_ptr<quillgrid::Holidays>& Holidays() const { return book_.Rules(); }
    void SetHolidays(std::shared_ptr<quillgrid::Holidays> rules) { book_.SetRules(std::move(rules)); }
    /// Resolves the rules for the date's year and builds the table of its month.
    MonthTable& ResolveHolidays(DateTime date);
    /// The table of the date's month; the rules are resolved anew when its year is another one.
    MonthTable& ShowMonth(DateTime date);
    /// The same, but a table of that month stays as it is.
    MonthTable& VisitMonth(DateTime date);
    /// The table of the month examined last.
    MonthTable& Table() { return book_.Table(); }

    DateTime UserDate1() const { return userDates_[0]; }
    DateTime UserDate2() const { return userDates_[1]; }
    DateTime UserDate3() const { return userDates_[2]; }
    /// Error 382 at design time.
    void SetUserDate1(DateTime date) { SetUserDate(0, date, "UserDate1"); }
    void SetUserDate2(DateTime date) { SetUserDate(1, date, "UserDate2"); }
    void SetUserDate3(DateTime date) { SetUserDate(2, date, "UserDate3"); }

    void SetAllowHoliday(bool allow) { Assign(settings_.Allow.Holiday, allow, "AllowHoliday"); }
    /// These two move `CurrentDate` off a day that may no longer be picked.
    bool SetAllowSaturday(bool allow);
    bool SetAllowSunday(bool allow);
    void SetWorkHoliday(bool work) { Assign(settings_.Work.Holiday, work, "WorkHoliday"); }
    void SetWorkSaturday(bool work) { Assign(settings_.Work.Saturday, work, "WorkSaturday"); }
    void SetWorkSunday(bool work) { Assign(settings_.Work.Sunday, work, "WorkSunday"); }
    /// All flags and the preset at once; with the preset come its rules, in place of all others.
    bool Synchronise(const CalendarSync& sync);

private:
    struct LoadedPreset {
        const HolidayPreset* Preset = nullptr;
        std::string Config;
        const quillgrid::Holidays* Rules = nullptr; // null before the first load
        std::uint64_t Revision = 0;
    };

    void Mark(std::string_view key) {
        if (owner_) owner_->PropertyChanged(key);
    }
    void Assign(bool& field, bool value, std::string_view key) {
        field = value;
        Mark(key);
    }
    bool AssignAndMove(bool& field, bool value, std::string_view key);
    void SetUserDate(std::size_t which, DateTime date, const char* name);

    std::int32_t CurrentDay() const { return NearestValidDay(settings_.CurrentDate.Day); }
    std::int32_t Limited(std::int32_t day) const;
    Weekend WorkWeekend() const { return {settings_.Work.Saturday, settings_.Work.Sunday}; }
    bool IsBlocked(std::int32_t day, const DayFlags& flags);
    DateSearch SearchAllowed();
    std::int32_t CountWorkDays(std::int32_t first, std::int32_t last);
    std::int32_t StepWorkDays(std::int32_t day, std::int64_t n);
    std::int32_t StepKnownDays(std::int32_t day, std::int64_t n);
    void ShowCurrentMonth() { ShowMonth(settings_.CurrentDate); }

    std::string& Config();
    std::string_view ConfigKey() const;
    bool IsLoaded(const HolidayPreset* preset, std::string_view config) const;
    void LoadAutoHolidays();

    CalendarSettings settings_;
    std::array<DateTime, 3> userDates_{};
    HolidayBook book_;
    KnownMarks noHolidays_{HolidayMarks()};
    LoadedPreset loaded_;
    CalendarOwner* owner_;
    std::shared_ptr<bool> life_ = std::make_shared<bool>();
};

} // namespace quillgrid
