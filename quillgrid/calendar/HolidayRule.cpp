#include "quillgrid/calendar/HolidayRule.h"

namespace quillgrid {

namespace {

MonthDay MonthDayOf(std::int32_t day) {
    if (!IsValidDay(day)) return {};
    const CivilDate date = DateOf(day);
    return {static_cast<std::int16_t>(date.Month), static_cast<std::int16_t>(date.Day)};
}

/// The n-th weekday may run into the next month: there is no fifth one in most.
MonthDay WeekdayOfMonth(const HolidayRule& rule, std::int32_t year) {
    const auto start = DayFromParts(year, rule.Month, 1);
    if (!start) return {};
    const int wanted = rule.Type - qghtSundayOfMonth + 1;
    const int toFirst = (wanted - Weekday(*start) + 7) % 7;
    const int weeks = rule.Shift > 1 ? rule.Shift - 1 : 0;
    return MonthDayOf(*start + toFirst + weeks * 7);
}

} // namespace

YearAnchors YearAnchors::Of(std::int32_t year, const UserDays& user) {
    return {year, EasterDay(year), BusstagDay(year), user};
}

MonthDay ResolveRule(const HolidayRule& rule, const YearAnchors& anchors) {
    if (IsWeekdayKind(rule.Type)) return WeekdayOfMonth(rule, anchors.Year);
    if (rule.Type == qghtDaysFromEaster) return MonthDayOf(anchors.Easter + rule.Shift);
    if (rule.Type == qghtDaysFromGermanBusstag) return MonthDayOf(anchors.Busstag + rule.Shift);
    if (IsUserDateKind(rule.Type)) {
        const auto which = static_cast<std::size_t>(rule.Type - qghtDaysFromUserDate1);
        return MonthDayOf(anchors.User[which] + rule.Shift);
    }
    return {rule.Month, rule.Day};
}

} // namespace quillgrid
