#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/CalendarPadState.h"
#include "quillgrid/calendar/CalendarPlace.h"

namespace quillgrid {

/// The tool tip of what is under the mouse. While it tells today's date it notices midnight.
class QUILLGRID_EXPORT CalendarTips {
public:
    explicit CalendarTips(CalendarPadState& state) : state_(state) {}

    /// The mouse is over a place.
    void Show(const CalendarPlace& place);
    void Forget();

private:
    void ShowToday();
    void Set(std::string text);

    CalendarPadState& state_;
    std::string shown_;
    Connection midnight_;
};

} // namespace quillgrid
