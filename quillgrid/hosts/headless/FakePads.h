#pragma once

#include "quillgrid/calendar/QGCalendar.h"
#include "quillgrid/grid/PadFactory.h"
#include "quillgrid/hosts/headless/ClassicTheme.h"
#include "quillgrid/hosts/headless/FakeClock.h"
#include "quillgrid/hosts/headless/FakePadWindow.h"
#include "quillgrid/hosts/headless/FakePopupMenu.h"
#include "quillgrid/hosts/headless/FakeScrollBar.h"
#include "quillgrid/hosts/headless/FakeSite.h"
#include "quillgrid/hosts/headless/FakeSurface.h"
#include "quillgrid/hosts/headless/FixedMetrics.h"
#include "quillgrid/pads/QGCalcpad.h"
#include "quillgrid/pads/QGInputList.h"

#include <memory>
#include <string_view>

namespace quillgrid::headless {

/// The three pads on windows that nobody sees.
class FakePads : public PadFactory {
public:
    FakePads(headless::Journal& journal, FakeClock& clock, std::string_view locale);
    ~FakePads() override;

    QGInputList& Listpad() override;
    QGCalendar& DatePad() override;
    QGCalcpad& CalcPad() override;
    PadWindow& Window(PadKind kind) override { return WindowOf(kind); }
    FakePadWindow& WindowOf(PadKind kind);
    /// The list forgets its cell, which it would hold until it opens for another; nothing while it shows.
    void ForgetCells();
    /// How many windows are on the screen.
    int ShownWindows() const;

    /// Where to click, on the pad's own surface.
    Point MiddleOfRow(std::int32_t rowInView);
    Point MiddleOfDay(std::int32_t day);
    Point CornerOfKey(std::int32_t number);

private:
    headless::Journal quiet_; // of the pads' own repaints
    FakeClock& clock_;
    Locale locale_;
    FocusPlace focus_ = FocusPlace::Outside;
    FakeSurface listSurface_{quiet_, focus_};
    FakeSurface dateSurface_{quiet_, focus_};
    FakeSurface calcSurface_{quiet_, focus_};
    FakePadWindow listWindow_;
    FakePadWindow dateWindow_;
    FakePadWindow calcWindow_;
    FakeScrollBar bar_;
    FakeSite site_;
    FixedMetrics metrics_;
    ClassicTheme theme_;
    FakePopupMenu menu_;
    std::unique_ptr<QGInputList> list_;
    std::unique_ptr<QGCalendar> date_;
    std::unique_ptr<QGCalcpad> calc_;
};

} // namespace quillgrid::headless
