#pragma once

#include "quillgrid/calendar/WorkCalendar.h"

#include <cstdint>
#include <optional>

namespace quillgrid {

/// The date that a key leads to from the calendar's current one; nothing for a key that does not navigate.
std::optional<DateTime> DateForKey(WorkCalendar& calendar, std::int32_t keyCode);

} // namespace quillgrid
