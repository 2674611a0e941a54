// Presses, moves, releases, drops, held buttons and access keys.
#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillgrid {
namespace {

using headless::HeadlessHost;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Rows are 18 pixels high from y = 10; the button strips are the last 16 pixels before x = 189.
class MouseTest : public ::testing::Test {
public: // a test makes more of them
    HeadlessHost Host{{200, 120}};
    Quillgrid& Grid = *Host.Grid;

    std::shared_ptr<Cell> Add(const char* key, const Variant& value, CellTemplateConstants kind = qgctNone) {
        return Grid.Add({.Key = key, .Caption = Variant(key), .Value = value, .CellTemplate = kind});
    }
    void Start() {
        Grid.Refresh();
        Host.RecordEvents();
        Host.EnterControl();
        Host.Journal.Clear();
    }
    std::vector<std::string> Events() {
        std::vector<std::string> events;
        for (auto& entry : Host.Journal.Take()) {
            if (!entry.starts_with("repaint")) events.push_back(std::move(entry));
        }
        return events;
    }
    void Hold(Point position) {
        Host.Clock.Held.Left = true;
        Grid.MouseDown(position);
    }
    void LetGo(Point position) {
        Host.Clock.Held.Left = false;
        Grid.MouseUp(position);
    }
};

constexpr Point UpperHalf{180, 14};
constexpr Point LowerHalf{180, 26};

TEST_F(MouseTest, SpinButtonStepsEverFasterWhileHeld) {
    const auto cell = Add("n", Variant(5), qgctSpin);
    Start();
    Hold(UpperHalf);
    EXPECT_EQ(cell->Text(), "6") << "at once";
    const auto after = [&](int milliseconds) {
        Host.Clock.Advance(milliseconds);
        return cell->Text();
    };
    EXPECT_EQ(after(249), "6");
    EXPECT_EQ(after(1), "7");
    EXPECT_EQ(after(199), "7");
    EXPECT_EQ(after(1), "8");
    EXPECT_EQ(after(150), "9");
    EXPECT_EQ(after(100), "10");
    EXPECT_EQ(after(1000), "20");
    LetGo(UpperHalf);
    EXPECT_EQ(after(1000), "20");
    EXPECT_EQ(Host.Clock.Waiting(), 0U);
    const auto events = Events();
    EXPECT_EQ(std::count(events.begin(), events.end(), "Change n"), 15);
    EXPECT_EQ(events.size(), 15U);
}

TEST_F(MouseTest, SpinGoesDownInTheLowerHalfAndWithTheRightButton) {
    const auto cell = Add("n", Variant(5), qgctSpin);
    Start();
    Hold(LowerHalf);
    EXPECT_EQ(cell->Text(), "4");
    LetGo(LowerHalf);
    Hold(UpperHalf);
    Host.Clock.Held = {.Left = false, .Right = true};
    Host.Clock.Advance(250);
    EXPECT_EQ(cell->Text(), "4") << "one up, one down";
    Host.Clock.Held = {};
    Host.Clock.Advance(1000);
    EXPECT_EQ(cell->Text(), "4");
    EXPECT_EQ(Host.Clock.Waiting(), 0U);
}

TEST_F(MouseTest, SpinEndsWhereNothingIsLeftToStep) {
    using Deed = void (*)(MouseTest&, Cell&);
    const Deed deeds[] = {
        [](MouseTest&, Cell& cell) { cell.SetEnabled(false); },
        [](MouseTest& test, Cell&) { test.Host.LeaveControl(); },
        [](MouseTest& test, Cell&) { test.Grid.Cells().Item("other")->SetFocus(); },
        [](MouseTest& test, Cell&) { test.Grid.Clear(); },
        [](MouseTest&, Cell& cell) { cell.SetMax(cell.Value()); },
        [](MouseTest& test, Cell&) { test.Grid.Terminate(); },
        [](MouseTest& test, Cell&) { test.Host.Grid.reset(); },
    };
    for (const Deed& deed : deeds) {
        SCOPED_TRACE(&deed - deeds);
        MouseTest_SpinEndsWhereNothingIsLeftToStep_Test test;
        const auto cell = test.Add("n", Variant(5), qgctSpin);
        test.Add("other", Variant("x"));
        test.Start();
        test.Hold(UpperHalf);
        test.Host.Clock.Advance(250);
        EXPECT_EQ(cell->Text(), "7");
        deed(test, *cell);
        test.Host.Clock.Advance(250);
        const std::string stopped = cell->Text();
        test.Host.Clock.Advance(5000);
        EXPECT_EQ(cell->Text(), stopped);
        EXPECT_EQ(test.Host.Clock.Waiting(), 0U);
    }
}

TEST_F(MouseTest, NothingWaitsForASpinCellThatIsGone) {
    for (const auto& remove :
         {+[](Quillgrid& grid) { grid.Cells().Remove("n"); }, +[](Quillgrid& grid) { grid.Clear(); }}) {
        MouseTest_NothingWaitsForASpinCellThatIsGone_Test test;
        test.Add("n", Variant(5), qgctSpin);
        test.Start();
        test.Hold(UpperHalf);
        ASSERT_EQ(test.Host.Clock.Waiting(), 1U);
        remove(test.Grid);
        EXPECT_EQ(test.Host.Clock.Waiting(), 0U);
    }
}

TEST_F(MouseTest, NothingWaitsWhereAHandlerOfTheStepHasSentTheUserAway) {
    Add("n", Variant(5), qgctSpin);
    Start();
    Grid.Change.Listen([&](Cell&) { Host.LeaveControl(); });
    Hold(UpperHalf);
    EXPECT_EQ(Host.Clock.Waiting(), 0U);
}

TEST_F(MouseTest, HandlersMayDestroyTheControlWhileAButtonIsHeld) {
    Add("n", Variant(5), qgctSpin);
    Start();
    int changes = 0;
    Grid.Change.Listen([&](Cell&) {
        if (++changes == 3) Host.Grid.reset();
    });
    Hold(UpperHalf);
    Host.Clock.Advance(5000);
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(Host.Clock.Waiting(), 0U);
}

TEST_F(MouseTest, ButtonsLookPressedWhileHeldAndHotUnderThePointer) {
    Add("when", Variant(DateTime{46000, 0}), qgctDate);
    Add("plain", Variant("x"));
    Grid.SetAppearance(qgapTrack3D);
    Start();
    const auto edges = [&] { return Host.Paint().Starting("edge 173,10"); };
    EXPECT_THAT(edges(), IsEmpty());
    Grid.MouseMove(UpperHalf, false);
    EXPECT_THAT(edges(), ElementsAre("edge 173,10 - 189,28 raised-inner"));
    EXPECT_EQ(Host.Surface.Pointer, MousePointer::Hand);
    Host.Surface.Invalid.clear();
    Grid.MouseMove({180, 15}, false);
    EXPECT_THAT(Host.Surface.Invalid, IsEmpty());
    Hold(UpperHalf);
    EXPECT_THAT(edges(), ElementsAre("edge 173,10 - 189,28 sunken-outer"));
    LetGo({100, 100});
    EXPECT_THAT(edges(), ElementsAre("edge 173,10 - 189,28 raised-inner"));
    Grid.MouseMove({180, 36}, false);
    EXPECT_EQ(Host.Surface.Pointer, MousePointer::Default) << "a strip without a button is part of the value";
    EXPECT_THAT(edges(), IsEmpty());
    Grid.MouseMove(UpperHalf, false);
    Grid.MouseLeave();
    EXPECT_THAT(edges(), IsEmpty());
}

TEST_F(MouseTest, ButtonsBeginRightOfTheirEdge) {
    const auto cell = Add("n", Variant(5), qgctSpin);
    Start();
    Hold({173, 14});
    EXPECT_EQ(cell->Text(), "5");
    Hold({174, 14});
    EXPECT_EQ(cell->Text(), "6");
    Hold({188, 19}); // the middle still belongs to the upper half
    EXPECT_EQ(cell->Text(), "7");
    Hold({188, 20});
    EXPECT_EQ(cell->Text(), "6");
}

TEST_F(MouseTest, HandlersMayDestroyTheControlWithItsCloseBox) {
    Grid.SetCaption("Form");
    Grid.SetShowCaption(true);
    Grid.CloseBoxClick.Listen([&] { Host.Grid.reset(); });
    Start();
    Hold({180, 15});
    Host.Surface.Invalid.clear();
    LetGo({180, 15});
    EXPECT_FALSE(Host.Grid);
    EXPECT_THAT(Host.Surface.Invalid, IsEmpty());
}

TEST_F(MouseTest, CaptionBoxesAnswerOnRelease) {
    Grid.SetCaption("Form");
    Grid.SetShowCaption(true);
    Host.Site.UnitsPerPixel = 15;
    Host.Site.UnitsPerPixelVertically = 12;
    float x = 0;
    float y = 0;
    Grid.MenuClick.Listen([&](float left, float bottom) {
        x = left;
        y = bottom;
        Host.Journal.Note("MenuClick");
    });
    Grid.CloseBoxClick.Listen([&] { Host.Journal.Note("CloseBoxClick"); });
    Start();
    const Point close{180, 15};
    const Point menu{15, 15};
    const auto edge = [&](const char* box) { return Host.Paint().Starting(box); };
    Grid.MouseMove(close, false);
    EXPECT_THAT(edge("edge 175,8"), ElementsAre("edge 175,8 - 192,25 raised-inner"));
    Hold(close);
    EXPECT_THAT(edge("edge 175,8"), ElementsAre("edge 175,8 - 192,25 sunken-outer"));
    EXPECT_THAT(Events(), IsEmpty());
    const auto whileHandled = Grid.CloseBoxClick.Connect([&] {
        EXPECT_THAT(edge("edge 175,8"), ElementsAre("edge 175,8 - 192,25 sunken-outer"))
            << "until all is done";
    });
    LetGo(close);
    EXPECT_THAT(edge("edge 175,8"), ElementsAre("edge 175,8 - 192,25 raised-inner"));
    EXPECT_THAT(Events(), ElementsAre("CloseBoxClick"));
    Hold(close);
    Grid.MouseMove({100, 60}, true);
    EXPECT_THAT(edge("edge 175,8"), ElementsAre("edge 175,8 - 192,25 flat"));
    LetGo({100, 60});
    EXPECT_THAT(Events(), IsEmpty());
    LetGo(menu);
    EXPECT_THAT(Events(), ElementsAre("MenuClick"));
    EXPECT_EQ(x, 8 * 15);
    EXPECT_EQ(y, 25 * 12);
    Grid.SetShowCloseBox(false);
    Grid.Refresh();
    Hold(close);
    LetGo(close);
    EXPECT_THAT(Events(), IsEmpty());
}

TEST_F(MouseTest, GroupsFoldByMouseAndKey) {
    Grid.SetGrouped(true);
    Grid.SetShowGroupBox(true);
    Grid.AddGroup({.Key = "g"});
    Add("inside", Variant("x"));
    Start();
    const auto group = Grid.Groups().Item("g");
    EXPECT_EQ(Grid.RowCount(), 2);
    Hold({15, 15});
    EXPECT_EQ(Grid.RowCount(), 1);
    EXPECT_FALSE(group->Expanded());
    LetGo({15, 15});
    Host.Press(KeyRight);
    EXPECT_EQ(Grid.RowCount(), 2);
    Host.Press(KeyRight);
    EXPECT_EQ(Grid.RowCount(), 2);
    Host.Press(KeyLeft);
    EXPECT_EQ(Grid.RowCount(), 1);
    Grid.SetAlignment(qgalRightJustify);
    Grid.Refresh();
    Host.Press(KeyLeft);
    EXPECT_EQ(Grid.RowCount(), 2);
    Grid.MouseMove({180, 15}, false);
    EXPECT_EQ(Host.Surface.Pointer, MousePointer::Hand);
    Grid.MouseMove({180, 33}, false);
    EXPECT_EQ(Host.Surface.Pointer, MousePointer::Default);
    Grid.SetShowGroupBox(false);
    Grid.Refresh();
    Host.Press(KeyRight);
    EXPECT_EQ(Grid.RowCount(), 2);
}

TEST_F(MouseTest, DropsAreTypedIntoTheCellUnderThem) {
    const auto text = Add("text", Variant("old"));
    const auto date = Add("date", Variant("1.2.2003"), qgctDate);
    const auto list = Add("list", Variant("a"), qgctlist);
    for (const char* entry : {"a", "b"})
        list->Listitems().Add({.Text = entry, .ItemData = Variant(entry)});
    const auto locked = Add("locked", Variant("x"));
    locked->SetLocked(true);
    Grid.Refresh();
    Host.RecordEvents();
    Host.Journal.Clear();
    EXPECT_TRUE(Grid.DropText({100, 15}, "new"));
    EXPECT_EQ(text->Text(), "new");
    EXPECT_THAT(Events(), ElementsAre("ValidateCell text", "Change text"))
        << "although the focus is elsewhere";
    EXPECT_TRUE(Grid.DropText({100, 35}, "4.5."));
    EXPECT_EQ(date->Text(), "04.05.2026");
    EXPECT_TRUE(Grid.DropText({100, 35}, "no date"));
    EXPECT_EQ(date->Text(), "04.05.2026");
    EXPECT_EQ(Host.Box.Text(), "04.05.2026");
    Events();
    EXPECT_TRUE(Grid.DropText({100, 52}, "b"));
    EXPECT_EQ(list->ListIndex(), 2);
    EXPECT_THAT(Events(), Contains("Change list"));
    EXPECT_FALSE(Grid.MayDrop({100, 70}));
    EXPECT_FALSE(Grid.DropText({100, 70}, "y"));
    EXPECT_FALSE(Grid.DropText({100, 115}, "nowhere"));
    EXPECT_FALSE(Grid.DropFiles({100, 15}, {}));
    EXPECT_TRUE(Grid.DropFiles({100, 15}, {"/first", "/second"}));
    EXPECT_EQ(text->Text(), "/first");
    EXPECT_EQ(locked->Text(), "x");
}

TEST_F(MouseTest, DropsAreTakenAfterTheFocusHasGoneToo) {
    Add("text", Variant("old"));
    const auto date = Add("date", Variant("1.2.2003"), qgctDate);
    Start();
    Host.LeaveControl();
    Host.Journal.Clear();
    EXPECT_TRUE(Grid.DropText({100, 35}, "4.5."));
    EXPECT_EQ(date->Text(), "04.05.2026");
    EXPECT_THAT(Events(), ElementsAre("SelChange date", "ValidateCell date", "Change date"));
    EXPECT_FALSE(Host.Box.Visible);
    EXPECT_EQ(Host.Focus, headless::FocusPlace::Outside);
    auto stay =
        Grid.ValidateCellError.Connect([](Cell&, ValidationErrConstants&, bool& cancel) { cancel = true; });
    EXPECT_TRUE(Grid.DropText({100, 35}, "99.99."));
    EXPECT_THAT(Events(), ElementsAre("ValidateCellError date 20002"));
    EXPECT_FALSE(Host.Box.Visible) << "nobody is there to be kept in the cell";
}

TEST_F(MouseTest, DropIsRefusedWhileAnotherCellHoldsTheUser) {
    Add("date", Variant("1.2.2003"), qgctDate);
    const auto text = Add("text", Variant("old"));
    Start();
    Grid.ValidateCellError.Listen([](Cell&, ValidationErrConstants&, bool& cancel) { cancel = true; });
    Host.Type("99.99.");
    EXPECT_FALSE(Grid.DropText({100, 35}, "new"));
    EXPECT_EQ(text->Text(), "old");
}

TEST_F(MouseTest, AccessKeysSelectTheFirstRowThatHasThem) {
    Grid.Add({.Key = "name", .Caption = Variant("&Name")});
    Grid.Add({.Key = "street", .Caption = Variant("&Straße")});
    Grid.Add({.Key = "none", .Caption = Variant("Plain")});
    Grid.Add({.Key = "second", .Caption = Variant("&nochmal")});
    Grid.Add({.Key = "umlaut", .Caption = Variant("&Ärzte")});
    Start();
    EXPECT_EQ(Host.Site.AccessKeys, U"nsnä");
    EXPECT_TRUE(Grid.AccessKeyPress(U'S'));
    EXPECT_EQ(Grid.Cell()->Key(), "street");
    EXPECT_TRUE(Grid.AccessKeyPress(U'n'));
    EXPECT_EQ(Grid.Cell()->Key(), "name");
    EXPECT_TRUE(Grid.AccessKeyPress(U'Ä'));
    EXPECT_EQ(Grid.Cell()->Key(), "umlaut");
    EXPECT_FALSE(Grid.AccessKeyPress(U'x'));
    EXPECT_FALSE(Grid.AccessKeyPress(0));
}

TEST_F(MouseTest, ControlsKeepTheirSmallestSizeWhereTheHostLetsThem) {
    Host.ResizeTo({60, 200});
    EXPECT_EQ(Host.Surface.Inner, (Size{96, 36}));
    Host.ResizeTo({500, 300});
    Host.Surface.Invalid.clear();
    Grid.Resize();
    EXPECT_THAT(Host.Surface.Invalid, IsEmpty()) << "the same size again";
    Host.Surface.Inner = {300, 200}; // a hidden window keeps its new size to itself
    Grid.Refresh();
    Host.Surface.Invalid.clear();
    Host.ResizeTo({500, 300});
    EXPECT_FALSE(Host.Surface.Invalid.empty()) << "the recorded size, but not the one laid out";
    Host.Surface.MayResize = false;
    Host.ResizeTo({10, 10});
    EXPECT_EQ(Host.Surface.Inner, (Size{10, 10}));
    Host.Surface.MayResize = true;
    Host.Surface.Resized = [this] { Grid.Resize(); };
    Host.ResizeTo({20, 20});
    EXPECT_EQ(Host.Surface.Inner, (Size{96, 36}));
}

TEST_F(MouseTest, ScrollBarArrowsEndWithTheRows) {
    for (int i = 0; i < 12; ++i)
        Add(std::to_string(i).c_str(), Variant("x"));
    Host.ResizeTo({200, 110});
    Start();
    const auto arrows = [&] { return std::pair(Host.Bar.UpArrow, Host.Bar.DownArrow); };
    EXPECT_EQ(arrows(), std::pair(false, true));
    Grid.ScrollTo(10);
    EXPECT_EQ(Grid.FirstVisibleRow(), 8);
    EXPECT_EQ(arrows(), std::pair(true, false));
    EXPECT_EQ(Grid.CurrentRow(), 8) << "the view takes the current row along";
    Grid.ScrollTo(5);
    EXPECT_EQ(arrows(), std::pair(true, true));
}

} // namespace
} // namespace quillgrid
