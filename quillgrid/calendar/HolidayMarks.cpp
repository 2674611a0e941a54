#include "quillgrid/calendar/HolidayMarks.h"

namespace quillgrid {

namespace {

/// The rule with nothing in it that does not matter, so that comparison sees only what does.
HolidayRule Reduced(HolidayRule rule, const UserDays& user) {
    if (IsUserDateKind(rule.Type)) {
        const MonthDay date = ResolveRule(rule, {.User = user});
        rule.Month = date.Month;
        rule.Day = date.Day;
        rule.Type = qghtDayOfMonth;
    }
    if (IsFixedKind(rule.Type)) {
        rule.Type = qghtDayOfMonth;
        rule.Shift = 0;
    } else {
        rule.Day = 0;
        if (!IsWeekdayKind(rule.Type)) rule.Month = 0;
    }
    return rule;
}

} // namespace

HolidayMarks::HolidayMarks(const std::vector<HolidayRule>& rules, const UserDays& user) {
    for (const HolidayRule& rule : rules) {
        if (rule.Enabled) rules_.push_back(Reduced(rule, user));
    }
}

YearBits HolidayMarks::HolidaysOf(std::int32_t year) const {
    YearBits holidays;
    const auto anchors = YearAnchors::Of(year, {});
    for (const HolidayRule& rule : rules_) {
        const MonthDay date = ResolveRule(rule, anchors);
        if (date.Month < 1 || date.Day < 1 || date.Day > DaysInMonth(year, date.Month)) continue;
        // Out of its years a rule takes the mark of an earlier one away.
        holidays.Set(DaysBeforeMonth(year, date.Month) + date.Day - 1, rule.CountsIn(year));
    }
    return holidays;
}

} // namespace quillgrid
