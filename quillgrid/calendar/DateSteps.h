// The dates that a user's commands lead to, before anyone asks whether they may be picked.
#pragma once

#include "quillgrid/base/DateTime.h"

#include <cstdint>

namespace quillgrid {

enum class StepUnit : std::uint8_t { Day, Week, Month, Year };

/// Months and years keep to the last day of a shorter month. At the end of the calendar the date stays.
DateTime Stepped(DateTime date, StepUnit unit, std::int32_t count);

/// The same day of another month, its last one when it is shorter; 13 is January of the next year. Years
/// outside of 100 to 9999 give the calendar's first or last day, here and below.
DateTime WithMonth(DateTime date, std::int32_t month);
/// 29 February becomes 1 March in other years.
DateTime WithYear(DateTime date, std::int32_t year);
/// Day 31 of a month of 30 is the first of the next, day 0 the last of the one before.
DateTime WithDay(DateTime date, std::int32_t day);

} // namespace quillgrid
