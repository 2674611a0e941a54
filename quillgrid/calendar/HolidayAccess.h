#pragma once

#include "quillgrid/calendar/Holiday.h"

namespace quillgrid {

/// What calendars do to rules beyond their published members: no check, no notice, no settling.
struct HolidayAccess {
    /// The rule as the next resolution reads it.
    static HolidayRule Input(const Holiday& rule) {
        HolidayRule input = Shown(rule);
        if (IsWeekdayKind(rule.dayType_)) input.Month = rule.inputMonth_;
        return input;
    }
    /// The rule with the date that it shows now.
    static HolidayRule Shown(const Holiday& rule) {
        return {.Type = rule.dayType_,
                .Month = rule.month_,
                .Day = rule.day_,
                .Shift = rule.shift_,
                .FirstYear = rule.firstYear_,
                .LastYear = rule.lastYear_ == 0 ? std::int16_t{9999} : rule.lastYear_,
                .Enabled = rule.enabled_};
    }
    static void Write(Holiday& rule, std::int32_t year, MonthDay date) {
        rule.year_ = static_cast<std::int16_t>(year);
        rule.month_ = date.Month;
        rule.day_ = date.Day;
    }
};

} // namespace quillgrid
