#pragma once

#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/Quillgrid.h"
#include "quillgrid/hosts/headless/FakeClock.h"
#include "quillgrid/hosts/headless/FakeEditBox.h"
#include "quillgrid/hosts/headless/FakeImages.h"
#include "quillgrid/hosts/headless/FakePads.h"
#include "quillgrid/hosts/headless/FakeScrollBar.h"
#include "quillgrid/hosts/headless/FakeSite.h"
#include "quillgrid/hosts/headless/FakeSurface.h"
#include "quillgrid/hosts/headless/FakeTheme.h"
#include "quillgrid/hosts/headless/FixedMetrics.h"
#include "quillgrid/hosts/headless/Journal.h"
#include "quillgrid/hosts/headless/RecordingCanvas.h"

#include <memory>
#include <string>
#include <string_view>

namespace quillgrid::headless {

/// A control on a window that nobody sees, and a user's hands for it. The control may be destroyed at any
/// time, by the hands' own keys too.
class HeadlessHost {
public:
    /// A new control; with a bag one that a form saved.
    explicit HeadlessHost(Size size = {300, 200}, std::string_view locale = "de-DE", bool userMode = true,
                          const PropertyBag* bag = nullptr);
    ~HeadlessHost();
    HeadlessHost(const HeadlessHost&) = delete;
    HeadlessHost& operator=(const HeadlessHost&) = delete;

    headless::Journal Journal;
    FocusPlace Focus = FocusPlace::Outside;
    FakeSurface Surface{Journal, Focus};
    FakeEditBox Box{Focus};
    FakeScrollBar Bar;
    FixedMetrics Metrics;
    FakeClock Clock;
    FakeTheme Theme;
    FakeImages Images;
    FakeSite Site;
    std::unique_ptr<FakePads> Pads; ///< goes after the control
    std::unique_ptr<Quillgrid> Grid;

    /// Writes every event of the control into the journal: "SelChange name".
    void RecordEvents();
    /// The focus comes to the control, as by Tab.
    void EnterControl();
    /// The focus goes elsewhere.
    void LeaveControl();
    /// Types characters as a user would: key down, character, key up each.
    void Type(std::string_view text);
    /// Presses a key that makes no character, or Enter, Escape, Backspace, which do. True: the control used
    /// it.
    bool Press(std::int32_t keyCode, std::int32_t shift = 0);
    /// Clicks on a row of the list that is in view, on a day of the month, on a key of the calculator.
    void ClickRow(std::int32_t rowInView);
    void ClickDay(std::int32_t day);
    void ClickKey(std::int32_t number);
    /// Everything, or one area, painted.
    RecordingCanvas Paint() const;
    RecordingCanvas Paint(const Rect& area) const;
    void ResizeTo(Size size);

private:
    void TypeCharacter(char32_t character);
    bool PressCharacter(char32_t character);
};

} // namespace quillgrid::headless
