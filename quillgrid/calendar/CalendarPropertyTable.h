// The properties of the calendar pad, as a property bag keeps them.
#pragma once

#include "quillgrid/base/Variant.h"
#include "quillgrid/calendar/CalendarPadSettings.h"
#include "quillgrid/calendar/CalendarSettings.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/platform/PropertyBag.h"

#include <string_view>

namespace quillgrid {

/// Everything that a calendar pad keeps.
struct CalendarValues {
    CalendarPadSettings Pad;
    CalendarSettings Days;
};

/// Takes every property from the bag, the default of what the bag lacks. What cannot be read stays as it is.
void ReadCalendarValues(const PropertyBag& bag, const Locale& locale, const CalendarValues& defaults,
                        CalendarValues& values);
void WriteCalendarValues(PropertyBag& bag, const CalendarValues& values, const CalendarValues& defaults);

/// Whether setting the property kept under a key changes what the pad shows.
bool IsCalendarLook(std::string_view key);

} // namespace quillgrid
