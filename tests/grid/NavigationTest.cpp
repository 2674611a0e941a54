#include "quillgrid/base/ControlError.h"
#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace quillgrid {
namespace {

using headless::FocusPlace;
using headless::HeadlessHost;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

/// Cells "1" to "12" in a control that shows five rows.
class Navigate : public ::testing::Test {
protected:
    Navigate() {
        for (int i = 1; i <= 12; ++i) {
            const std::string name = std::to_string(i);
            host.Grid->Add({.Key = name, .Caption = Variant(name), .Value = Variant("text " + name)});
        }
        host.Grid->Refresh();
        host.EnterControl();
        host.RecordEvents();
        host.Journal.Clear();
    }
    std::vector<std::int32_t> Place() const {
        return {host.Grid->CurrentRow(), host.Grid->FirstVisibleRow()};
    }

    HeadlessHost host{{300, 110}};
};

TEST_F(Navigate, ArrowsScrollOneRowAtTheEdgesAndWrap) {
    ASSERT_EQ(host.Grid->VisibleRows(), 5);
    EXPECT_EQ(host.Bar.Maximum, 8);
    for (int i = 0; i < 5; ++i)
        host.Press(quillgrid::KeyDown);
    EXPECT_THAT(Place(), ElementsAre(6, 2));
    EXPECT_EQ(host.Bar.Value, 2);
    EXPECT_EQ(host.Box.Area.Top, 83); // over the lowest row in view
    for (int i = 0; i < 4; ++i)
        host.Press(quillgrid::KeyUp);
    EXPECT_THAT(Place(), ElementsAre(2, 2));
    host.Press(quillgrid::KeyUp);
    EXPECT_THAT(Place(), ElementsAre(1, 1));
    host.Press(quillgrid::KeyUp);
    EXPECT_THAT(Place(), ElementsAre(12, 8));
    host.Press(KeyEnter);
    EXPECT_THAT(Place(), ElementsAre(1, 1));
}

TEST_F(Navigate, WithoutWrapTheEndsCommitAndReportLeaving) {
    host.Grid->SetAllowWrap(false);
    host.Type("x");
    host.Journal.Clear();
    host.Press(quillgrid::KeyUp);
    EXPECT_THAT(host.Journal.Entries(), Contains("Change 1"));
    EXPECT_THAT(host.Journal.Entries(), Contains("LeaveFocus 1"));
    EXPECT_THAT(Place(), ElementsAre(1, 1));
    auto stay = host.Grid->ValidateCell.Connect([](Cell&, bool& cancel) { cancel = true; });
    host.Type("y");
    host.Journal.Clear();
    host.Press(quillgrid::KeyUp);
    EXPECT_THAT(host.Journal.Entries(), Not(Contains("LeaveFocus 1")));
}

TEST_F(Navigate, WrapsToTheRowThatIsLastAfterTheCommit) {
    auto changes = host.Grid->Change.Connect([&](Cell&) { host.Grid->Cells().Remove("12"); });
    host.Type("x");
    host.Press(quillgrid::KeyUp);
    EXPECT_THAT(Place(), ElementsAre(11, 7));
    host.Grid->Cells().Item("1")->SetFocus();
    host.Grid->SetTabPolicy(TabPolicy::Wrap);
    changes = host.Grid->Change.Connect([&](Cell&) { host.Grid->Cells().Remove("11"); });
    host.Type("y");
    EXPECT_TRUE(host.Press(KeyTab, ShiftShift));
    EXPECT_THAT(Place(), ElementsAre(10, 6));
}

TEST_F(Navigate, PagesHomeAndEnd) {
    host.Press(KeyPageDown);
    EXPECT_THAT(Place(), ElementsAre(6, 2));
    host.Press(KeyEnd); // belongs to the text
    EXPECT_THAT(Place(), ElementsAre(6, 2));
    host.Press(KeyEnd, ShiftControl);
    EXPECT_THAT(Place(), ElementsAre(12, 8));
    host.Press(KeyPageDown);
    EXPECT_THAT(Place(), ElementsAre(12, 8));
    host.Press(KeyHome, ShiftControl);
    EXPECT_THAT(Place(), ElementsAre(1, 1));
}

TEST_F(Navigate, TabSkipsHeadingsAndLeavesAtTheEnds) {
    host.Grid->AddGroup({.Key = "g"});
    host.Grid->Add({.Key = "last", .Caption = Variant("last"), .Value = Variant("v")});
    host.Grid->Refresh();
    host.Grid->Cells().Item("12")->SetFocus();
    EXPECT_TRUE(host.Press(KeyTab));
    EXPECT_EQ(host.Grid->Cell()->Key(), "last");
    host.Type("z");
    EXPECT_FALSE(host.Press(KeyTab));
    EXPECT_EQ(host.Grid->Cell()->Text(), "z");
    EXPECT_TRUE(host.Press(KeyTab, ShiftShift));
    EXPECT_EQ(host.Grid->Cell()->Key(), "12");
    EXPECT_FALSE(host.Press(KeyTab, ShiftControl));
    EXPECT_EQ(host.Grid->Cell()->Key(), "12");
    host.Press(quillgrid::KeyDown); // the arrows visit headings
    EXPECT_FALSE(host.Box.Visible);
    EXPECT_EQ(host.Focus, FocusPlace::Surface);
    EXPECT_EQ(host.Grid->CurrentGroup(), "g");
}

TEST_F(Navigate, TabWrapsOrLeavesAtOnceAsItsPolicySays) {
    host.Grid->AddGroup({.Key = "g"});
    host.Grid->SetGrouped(true);
    host.Grid->Refresh(); // the heading is the first row
    const auto key = [&] { return host.Grid->Cell()->Key(); };
    host.Grid->SetTabPolicy(TabPolicy::Wrap);
    host.Grid->Cells().Item("12")->SetFocus();
    EXPECT_TRUE(host.Press(KeyTab));
    EXPECT_EQ(key(), "1");
    EXPECT_TRUE(host.Press(KeyTab, ShiftShift));
    EXPECT_EQ(key(), "12");
    host.Grid->SetAllowWrap(false);
    host.Journal.Clear();
    EXPECT_TRUE(host.Press(KeyTab));
    EXPECT_THAT(host.Journal.Entries(), Contains("LeaveFocus 12"));
    EXPECT_EQ(key(), "12");
    EXPECT_FALSE(host.Press(KeyTab, ShiftControl));
    host.Grid->SetTabPolicy(TabPolicy::Leave);
    host.Grid->Cells().Item("3")->SetFocus();
    host.Type("typed");
    host.Journal.Clear();
    EXPECT_FALSE(host.Press(KeyTab));
    EXPECT_EQ(host.Grid->Cells().Item("3")->Text(), "typed");
    EXPECT_THAT(host.Journal.Entries(), Not(Contains("LeaveFocus 3"))) << "it is not the last cell";
    EXPECT_EQ(key(), "3");
    host.Grid->ValidateCell.Listen([](Cell&, bool& cancel) { cancel = true; });
    host.Type("again");
    EXPECT_TRUE(host.Press(KeyTab, ShiftShift)) << "the user must stay";
}

TEST_F(Navigate, WheelAndBarScrollAndTakeTheCurrentRowAlong) {
    host.Grid->MouseWheel(3);
    EXPECT_THAT(Place(), ElementsAre(4, 4));
    EXPECT_THAT(host.Journal.Entries(), Contains("SelChange 4"));
    host.Grid->MouseWheel(-1);
    EXPECT_THAT(Place(), ElementsAre(4, 3));
    host.Grid->ScrollTo(10);
    EXPECT_THAT(Place(), ElementsAre(8, 8));
    host.Grid->ScrollTo(-5);
    EXPECT_THAT(Place(), ElementsAre(5, 1));
    host.Grid->MouseWheel(std::numeric_limits<std::int32_t>::max());
    EXPECT_THAT(Place(), ElementsAre(8, 8));
    host.Grid->Cells().Item("1")->SetFocus();
    EXPECT_THAT(Place(), ElementsAre(1, 1));
    for (int i = 1; i <= 12; ++i) {
        EXPECT_EQ(host.Grid->Cells().Item(i)->Text(), "text " + std::to_string(i));
    }
}

TEST_F(Navigate, ScrollingOutOfACellThatHoldsTheUserDoesNotHappen) {
    host.Grid->ValidateCell.Listen([](Cell&, bool& cancel) { cancel = true; });
    host.Type("x");
    host.Bar.Value = 6; // the user has moved it
    host.Grid->ScrollTo(6);
    EXPECT_THAT(Place(), ElementsAre(1, 1));
    EXPECT_EQ(host.Bar.Value, 1);
}

TEST_F(Navigate, AnotherStyleLeavesTheViewWithACellThatHoldsTheUser) {
    host.Grid->ScrollTo(4);
    ASSERT_THAT(Place(), ElementsAre(4, 4));
    host.Grid->ValidateCell.Listen([](Cell&, bool& cancel) { cancel = true; });
    host.Type("x");
    host.Grid->SetStyle(qgstDefault);
    EXPECT_THAT(Place(), ElementsAre(4, 4));
    EXPECT_EQ(host.Bar.Value, 4);
    EXPECT_TRUE(host.Box.Visible);
}

TEST_F(Navigate, MouseSelectsRowsAndTogglesOnTheImage) {
    host.Images.Add("checked");
    host.Images.Add("unchecked");
    host.Images.Add("phone");
    host.Grid->Clear();
    host.Grid->Add({.Key = "text", .Caption = Variant("t"), .Value = Variant("v")});
    host.Grid->Add(
        {.Key = "flag", .Caption = Variant("f"), .Value = Variant(true), .CellTemplate = qgctboolean});
    host.Grid->Add(
        {.Key = "call", .Caption = Variant("c"), .Value = Variant("1"), .CellTemplate = qgctPhone});
    host.Grid->Refresh();
    host.Type("typed");
    host.Journal.Clear();
    host.Grid->MouseDown({12, 30}); // the label
    EXPECT_EQ(host.Grid->Cell()->Key(), "flag");
    EXPECT_EQ(host.Grid->Cells().Item("text")->Text(), "typed");
    host.Grid->MouseDown({100, 30});
    EXPECT_EQ(host.Grid->Cell()->Text(), "ja");
    host.Grid->MouseDown({26, 30});
    EXPECT_EQ(host.Grid->Cell()->Text(), "nein");
    EXPECT_THAT(host.Journal.Entries(), Contains("Change flag"));
    host.Grid->MouseDown({26, 48});
    EXPECT_THAT(host.Journal.Entries(), Contains("ImageClick call"));
    host.Grid->MouseDown({26, 90}); // below the rows
    EXPECT_EQ(host.Grid->Cell()->Key(), "call");
}

TEST_F(Navigate, RemovingTheCurrentCellHandsItsPlaceToTheNext) {
    host.Grid->Cells().Item("3")->SetFocus();
    host.Type("lost");
    host.Grid->Cells().Remove("3");
    EXPECT_EQ(host.Grid->Cell()->Key(), "4");
    EXPECT_EQ(host.Box.Text(), "text 4");
    host.Grid->Cells().Remove("1");
    EXPECT_EQ(host.Grid->Cell()->Key(), "4");
    EXPECT_EQ(host.Grid->CurrentRow(), 2);
    host.Grid->Clear();
    EXPECT_EQ(host.Grid->Cell(), nullptr);
    EXPECT_FALSE(host.Box.Visible);
    EXPECT_FALSE(host.Press(quillgrid::KeyDown));
    host.Paint();
}

TEST_F(Navigate, SortingCommitsWhatIsTypedIntoItsOwnCell) {
    host.Type("typed");
    host.Grid->Add({.Index = 1, .Key = "new", .Caption = Variant("0"), .Value = Variant("n")});
    host.Grid->Refresh();
    EXPECT_EQ(host.Grid->Cells().Item("1")->Text(), "typed");
    EXPECT_EQ(host.Grid->Cells().Item("new")->Text(), "n");
    EXPECT_EQ(host.Grid->Cell()->Key(), "new");
}

} // namespace
} // namespace quillgrid
