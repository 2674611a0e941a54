#pragma once

#include "quillgrid/base/DateTime.h"
#include "quillgrid/locale/Locale.h"

#include <string_view>

namespace quillgrid {

/// What a calendar asks of whoever shows it, and what it tells. Any of the notices may end the calendar.
class CalendarOwner {
public:
    virtual ~CalendarOwner() = default;

    virtual const Locale& UserLocale() const = 0;
    /// False at design time.
    virtual bool UserMode() const = 0;
    /// A kept value was assigned; `key` is the name under which it is kept.
    virtual void PropertyChanged(std::string_view key) = 0;
    /// `CurrentDate` was assigned and another day than `before` had been asked for.
    virtual void CurrentDateAssigned(DateTime before) = 0;
    /// The rules came anew from a preset.
    virtual void HolidaysReloaded() = 0;
};

} // namespace quillgrid
