#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/DateTime.h"

#include <string>

namespace quillgrid {

/// Three kinds of days, and whether each may be picked, or whether each is worked on.
struct DayFlags {
    bool Holiday = false;
    bool Saturday = false;
    bool Sunday = false;
};

/// A calendar's values that are kept, with their defaults. They may be written directly: every call reads
/// them afresh. `AutoHolidays` alone takes effect only when it is assigned through the calendar.
struct CalendarSettings {
    DateTime MinDate{*DayFromDate(1601, 1, 1)};
    DateTime MaxDate{LastDay}; ///< 0 and negative: the search for a day to pick goes on behind it
    DayOfWeekConstants FirstDayOfWeek = qgdwUseSystem;
    FirstWeekOfYearConstants FirstWeekOfYear = qgfwUseSystem;
    DayFlags Allow{true, true, true};
    DayFlags Work;
    /// Which rules of a preset are on, one "1" or "0" a rule; what is missing is on.
    std::string ConfigGermany = "10000111111100001000000110";
    std::string ConfigAustria = "11111111111111111111111111";
    std::string ConfigSwitzerland = "11111111111111111111111111";
    std::string ConfigEurope = "11111111111111111111111111";
    DateTime CurrentDate;
    AutoHolidayConstants AutoHolidays = qgahdGermany;
};

/// What a form hands to its calendar before each question.
struct CalendarSync {
    const DayFlags* Allow = nullptr; ///< null when there is no cell to take them from
    DayFlags Work{};
    AutoHolidayConstants AutoHolidays = qgahdGermany;
};

} // namespace quillgrid
