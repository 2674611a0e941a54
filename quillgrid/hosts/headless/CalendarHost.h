#pragma once

#include "quillgrid/calendar/QGCalendar.h"
#include "quillgrid/hosts/headless/ClassicTheme.h"
#include "quillgrid/hosts/headless/FakeClock.h"
#include "quillgrid/hosts/headless/FakePopupMenu.h"
#include "quillgrid/hosts/headless/FakeSite.h"
#include "quillgrid/hosts/headless/FakeSurface.h"
#include "quillgrid/hosts/headless/FixedMetrics.h"
#include "quillgrid/hosts/headless/Journal.h"
#include "quillgrid/hosts/headless/RecordingCanvas.h"

#include <memory>
#include <string_view>

namespace quillgrid::headless {

/// A calendar pad on a window that nobody sees. Its events, "change" and "click", and the areas that wait to
/// be painted go into the journal. The pad may be destroyed at any time.
class CalendarHost {
public:
    explicit CalendarHost(std::string_view locale = "de-DE", bool userMode = true);
    CalendarHost(const CalendarHost&) = delete;
    CalendarHost& operator=(const CalendarHost&) = delete;

    headless::Journal Journal;
    FocusPlace Focus = FocusPlace::Surface;
    FakeSurface Surface{Journal, Focus};
    FixedMetrics Metrics;
    FakeClock Clock;
    ClassicTheme Theme;
    FakeSite Site;
    FakePopupMenu Menu;
    std::unique_ptr<QGCalendar> Pad;

    /// True: the pad used the key.
    bool Press(std::int32_t keyCode);
    /// The left button, pressed and released.
    void Click(Point point);
    /// The middle of a day's cell in the month on show.
    Point MiddleOf(std::int32_t day) const;
    RecordingCanvas Paint() const;
};

} // namespace quillgrid::headless
