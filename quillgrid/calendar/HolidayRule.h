#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/HolidayDates.h"

#include <array>
#include <cstdint>

namespace quillgrid {

/// What decides when a rule falls and whether it counts.
struct HolidayRule {
    HolidayTypeConstants Type = qghtDayOfMonth;
    std::int16_t Month = 0;
    std::int16_t Day = 0;
    std::int16_t Shift = 0;
    std::int16_t FirstYear = 0;
    std::int16_t LastYear = 9999;
    bool Enabled = true;

    bool CountsIn(std::int32_t year) const { return year >= FirstYear && year <= LastYear; }
    friend bool operator==(const HolidayRule&, const HolidayRule&) = default;
};

struct MonthDay {
    std::int16_t Month = 0;
    std::int16_t Day = 0;
};

/// The reference dates of user-date rules, as day numbers.
using UserDays = std::array<std::int32_t, 3>;

/// What the rules of one year refer to.
struct QUILLGRID_EXPORT YearAnchors {
    std::int32_t Year = FirstYear;
    std::int32_t Easter = 0;
    std::int32_t Busstag = 0;
    UserDays User{};

    static YearAnchors Of(std::int32_t year, const UserDays& user);
};

constexpr bool IsWeekdayKind(HolidayTypeConstants type) {
    return type >= qghtSundayOfMonth && type <= qghtSaturdayOfMonth;
}
constexpr bool IsUserDateKind(HolidayTypeConstants type) {
    return type >= qghtDaysFromUserDate1 && type <= qghtDaysFromUserDate3;
}
/// Whether a rule names its day outright.
constexpr bool IsFixedKind(HolidayTypeConstants type) {
    return !IsWeekdayKind(type) && !IsUserDateKind(type) && type != qghtDaysFromEaster &&
           type != qghtDaysFromGermanBusstag;
}

/// Where a rule falls in a year; 0/0 when its date would lie outside the calendar. Only month and day count,
/// though the date itself may lie in another year.
QUILLGRID_EXPORT MonthDay ResolveRule(const HolidayRule& rule, const YearAnchors& anchors);

} // namespace quillgrid
