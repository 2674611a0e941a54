#pragma once

#include "quillgrid/base/DateTime.h"

namespace quillgrid {

/// What the user can do to a calendar pad. Both may end it: false then.
class CalendarCommands {
public:
    virtual ~CalendarCommands() = default;

    /// Makes a date, or the next one that may be picked, the current one.
    virtual bool GoTo(DateTime date) = 0;
    /// The user is done.
    virtual bool Confirm() = 0;
};

} // namespace quillgrid
