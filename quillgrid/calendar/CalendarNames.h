#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/locale/Locale.h"

#include <array>
#include <cstdint>
#include <string>

namespace quillgrid {

/// The names of days and months, and how the weeks of a calendar run.
struct QUILLGRID_EXPORT CalendarNames {
    DayOfWeekConstants FirstDay = qgdwSunday;                ///< one of the seven
    FirstWeekOfYearConstants FirstWeek = qgfwFirstJan1;      ///< one of the three
    std::array<std::string, 7> ShortDays{}, LongDays{};      ///< by column, the week's first day first
    std::array<std::string, 12> ShortMonths{}, LongMonths{}; ///< January first

    /// Columns of the weekend, 0 to 6.
    std::int32_t SundayColumn() const;
    std::int32_t SaturdayColumn() const { return (SundayColumn() + 6) % 7; }

    /// What is set to the system's way, or to none that there is, follows the locale.
    static CalendarNames Of(const Locale& locale, DayOfWeekConstants firstDay,
                            FirstWeekOfYearConstants firstWeek);

    friend bool operator==(const CalendarNames&, const CalendarNames&) = default;
};

} // namespace quillgrid
