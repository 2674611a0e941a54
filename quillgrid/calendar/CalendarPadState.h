#pragma once

#include "quillgrid/calendar/CalendarNames.h"
#include "quillgrid/calendar/CalendarPadLayout.h"
#include "quillgrid/calendar/CalendarPadSettings.h"
#include "quillgrid/calendar/CalendarPorts.h"
#include "quillgrid/calendar/MonthView.h"
#include "quillgrid/calendar/TimeZones.h"
#include "quillgrid/calendar/WorkCalendar.h"

#include <memory>

namespace quillgrid {

/// What the parts of a calendar pad have in common.
struct CalendarPadState {
    CalendarPadState(CalendarPorts ports, CalendarOwner& owner)
        : Ports(std::move(ports)), Days({Ports.Time.Now().Day}, &owner) {}

    CalendarPorts Ports;
    CalendarPadSettings Settings;
    WorkCalendar Days;
    TimeZones Ranges{Settings};
    CalendarNames Names;
    CalendarPadLayout Layout;
    MonthView View;
    bool Redraw = true;
    bool MarksDate = true;
    /// Gone as soon as a handler has destroyed the pad.
    std::shared_ptr<bool> Life = std::make_shared<bool>();

    bool IsLaidOut() const { return !Layout.Pad.IsEmpty(); }
};

} // namespace quillgrid
