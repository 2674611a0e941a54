#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/CalendarPadLayout.h"
#include "quillgrid/calendar/MonthView.h"

#include <cstdint>

namespace quillgrid {

/// What of the calendar pad is at a point.
struct QUILLGRID_EXPORT CalendarPlace {
    enum class Kind : std::uint8_t { Outside, Nowhere, Month, Year, Button, Day, Today };

    Kind What = Kind::Nowhere;
    /// Of a `Button`, which lies on the month's or the year's side of the caption.
    CalendarPadLayout::Button Which = CalendarPadLayout::PreviousMonth;
    std::int32_t Cell = 0; ///< of a `Day`, 0 to 41

    /// `buttons`: the caption's stepping buttons work.
    static CalendarPlace At(Point point, const CalendarPadLayout& layout, const MonthView& view,
                            bool buttons);

    friend bool operator==(const CalendarPlace&, const CalendarPlace&) = default;
};

} // namespace quillgrid
