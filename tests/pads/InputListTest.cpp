#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/hosts/headless/FakePads.h"
#include "quillgrid/pads/PadKeyCodes.h"
#include "tests/cells/FakeOwner.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace quillgrid::test {

namespace {

/// The list pad on a window that nobody sees.
class InputListTest : public testing::Test {
protected:
    std::shared_ptr<Cell> List(int count) {
        const auto cell = cells.Add({.Caption = "c", .CellTemplate = qgctlist});
        cell->Listitems().Clear();
        for (int i = 1; i <= count; ++i)
            cell->Listitems().Add({.Text = "row " + std::to_string(i)});
        CellAccess::SetArea(*cell, CellArea::Value, {0, 0, 120, 20});
        return cell;
    }
    /// Whether all of the pad waits to be painted since the last call.
    bool TakeRepaint() {
        const Rect all{0, 0, pad.Layout().Pad.Width, pad.Layout().Pad.Height};
        const std::vector<Rect> invalid = std::exchange(surface.Invalid, {});
        return std::find(invalid.begin(), invalid.end(), all) != invalid.end();
    }

    FakeOwner owner;
    Cells cells{&owner};
    headless::Journal journal;
    headless::FocusPlace focus = headless::FocusPlace::Outside;
    headless::FakeSurface surface{journal, focus};
    headless::FakePadWindow window{journal, "list", surface.Inner};
    headless::FakeScrollBar bar;
    headless::FakeSite site;
    headless::FixedMetrics metrics;
    headless::FakeClock clock;
    headless::ClassicTheme theme;
    QGInputList pad{{surface, window, bar, site, metrics, clock, theme, BuiltInLocale("de-DE")}};
};

} // namespace

TEST_F(InputListTest, WhatLeavesThePlacesAsTheyAreIsPaintedToo) {
    pad.Popup(List(8), 0, 0);
    TakeRepaint();
    pad.SetBorderStyle(qgpbsSunken); // as wide as before
    EXPECT_TRUE(TakeRepaint());
    pad.SetFont({"Serif", pad.Font().Size, false, true});
    EXPECT_TRUE(TakeRepaint());
    pad.SetBackColor(0x123456);
    EXPECT_TRUE(TakeRepaint());
    EXPECT_EQ(surface.Background, 0x123456U);
    pad.InitProperties();
    EXPECT_TRUE(TakeRepaint());
    EXPECT_EQ(surface.Background, ColourButtonFace);
}

TEST_F(InputListTest, TheHeightGoesByTheRowsWhateverTheHostResizes) {
    pad.Popup(List(3), 0, 0);
    const Size size = surface.Inner;
    surface.Inner.Height = 500;
    pad.Resize();
    EXPECT_EQ(surface.Inner, size);
    surface.Inner = {200, 10};
    pad.Resize();
    EXPECT_EQ(surface.Inner, (Size{200, size.Height}));
    pad.SetAutoSize(true);
    surface.Inner.Width = 500;
    pad.Resize();
    EXPECT_EQ(surface.Inner, size);
}

} // namespace quillgrid::test
