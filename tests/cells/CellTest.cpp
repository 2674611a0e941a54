#include "quillgrid/cells/Cell.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/Cells.h"
#include "tests/cells/ErrorExpectation.h"
#include "tests/cells/FakeOwner.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillgrid::test {

namespace {

class CellTest : public testing::Test {
protected:
    std::shared_ptr<Cell> Add(CellTemplateConstants number, Variant value) {
        return cells.Add({.Caption = "c", .Value = std::move(value), .CellTemplate = number});
    }

    FakeOwner owner;
    Cells cells{&owner};
};

Currency Money(std::int64_t whole) {
    return *Currency::FromInteger(whole);
}

} // namespace

TEST_F(CellTest, ChangeIsMarkedOnlyWhenTheTextDiffersOrNullComes) {
    struct Case {
        Variant before, after;
        bool changed;
    };
    const Case table[] = {
        {"abc", "abd", true},
        {"abc", "ABC", false},
        {Variant::Null(), "", false},
        {"", Variant::Null(), true},
        {"abc", Variant::Null(), true},
        {Variant::Null(), Variant::Null(), false},
        {Variant(), Variant::Null(), true},
    };
    for (const auto& row : table) {
        const auto cell = Add(qgctNone, row.before);
        cell->SetValue(row.after);
        EXPECT_EQ(cell->Changed(), row.changed)
            << row.before.ToPlainText() << " -> " << row.after.ToPlainText();
        EXPECT_EQ(cell->Value(), row.after);
    }
}

TEST_F(CellTest, RowIsRepaintedForEveryAssignmentOnceChangedButNotWhileSilent) {
    const auto cell = Add(qgctNone, "a");
    owner.TakeCalls();
    cell->SetValue("a");
    EXPECT_EQ(owner.TakeCalls(), Calls{});
    cell->SetText("b");
    cell->SetText("b");
    EXPECT_EQ(owner.TakeCalls(), (Calls{"row c", "row c"}));
    owner.Quiet = true;
    cell->SetText("d");
    cell->Refresh();
    EXPECT_EQ(owner.TakeCalls(), Calls{});
    EXPECT_TRUE(owner.Quiet);
}

TEST_F(CellTest, UndoReturnsToTheLastAcceptedValue) {
    const auto cell = Add(qgctInteger, 5);
    cell->SetValue(6);
    cell->SetValue(7);
    CellAccess::SetErrorCode(*cell, qgErrBadNumber);
    owner.TakeCalls();
    cell->Undo();
    EXPECT_EQ(cell->Value(), Variant(5));
    EXPECT_FALSE(cell->Changed());
    EXPECT_EQ(cell->ErrorCode(), qgErrNone);
    EXPECT_EQ(owner.TakeCalls().back(), "undone c");

    cell->SetValue(8);
    CellAccess::SetChanged(*cell, false);
    EXPECT_EQ(CellAccess::UndoValue(*cell), Variant(8));
    cell->SetValue(9);
    CellAccess::SetChanged(*cell, true);
    EXPECT_EQ(CellAccess::UndoValue(*cell), Variant(8));
    CellAccess::SetUndoValue(*cell, 3);
    cell->Undo();
    EXPECT_EQ(cell->Value(), Variant(3));
}

TEST_F(CellTest, UndoOfAListToNullKeepsTheSelection) {
    const auto cell = cells.Add({.Caption = "c", .CellTemplate = qgctlist});
    cell->Listitems().Add({.Text = "one", .ItemData = 1});
    cell->SetValue(1);
    cell->Undo();
    EXPECT_EQ(cell->ListIndex(), 1);
    EXPECT_EQ(cell->Text(), "one");
    EXPECT_FALSE(cell->Changed());
}

TEST_F(CellTest, RejectedValueLeavesTheOldOneWithoutAnError) {
    const auto cell = Add(qgctDate, DateTime{46'000, 0});
    const auto before = cell->Text();
    cell->SetText("no date");
    EXPECT_EQ(cell->Value(), Variant(DateTime{46'000, 0}));
    EXPECT_EQ(cell->Text(), before);
    EXPECT_FALSE(cell->Changed());
    EXPECT_EQ(cell->ErrorCode(), qgErrNone);
    EXPECT_EQ(owner.Working, nullptr);
}

TEST_F(CellTest, ValueIsReadInTheTypeOfItsRule) {
    struct Case {
        CellTemplateConstants number;
        Variant value, read;
    };
    const Case table[] = {
        {qgctInteger, "12a3", 123},
        {qgctCurrency, "3.5", *Currency::FromDouble(3.5)},
        {qgctNumber, "3.5", 3.5},
        {qgctTime, DateTime{46'000, 3'600}, DateTime{0, 3'600}},
        {qgctDate, DateTime{46'000, 3'600}, DateTime{46'000, 0}},
        {qgctInteger, "", Variant::Null()},
        {qgctNone, "", ""},
    };
    for (const auto& row : table)
        EXPECT_EQ(Add(row.number, row.value)->Value(), row.read) << row.number;

    const auto cell = Add(qgctNone, "abc");
    for (const auto rule : {qgvrInteger, qgvrCurrency, qgvrEuro, qgvrDouble, qgvrDate, qgvrTime}) {
        cell->SetValidationRule(rule);
        EXPECT_TRUE(cell->Value().IsNull()) << rule;
    }
}

TEST_F(CellTest, FormatShowsAtTheNextRefreshAndUnitAtOnce) {
    const auto cell = Add(qgctNumber, 12.5);
    cell->SetFormat("Fixed");
    EXPECT_EQ(cell->Text(), "12.5");
    CellAccess::RefreshStaleText(*cell);
    EXPECT_EQ(cell->Text(), "12.50");
    cell->SetUnit("%");
    EXPECT_EQ(cell->Text(), "12.50 %");
}

TEST_F(CellTest, PercentageIsClampedAndZeroChangesNothing) {
    const auto cell = Add(qgctNumber, 50);
    EXPECT_EQ(cell->PercentValue(), Currency{}); // no bounds
    cell->SetMin(0);
    cell->SetMax(200);
    EXPECT_EQ(cell->PercentValue(), Money(25));
    cell->SetPercentValue(Money(150));
    EXPECT_EQ(cell->Value(), Variant(200.0));
    EXPECT_EQ(cell->Text(), "200");
    EXPECT_FALSE(cell->Changed());
    for (const auto nothing : {Currency{}, Money(-5)}) {
        cell->SetPercentValue(nothing);
        EXPECT_EQ(cell->Value(), Variant(200.0));
    }
    const double huge = std::numeric_limits<double>::max();
    cell->SetMin(-huge);
    cell->SetMax(huge);
    cell->SetPercentValue(Money(10));
    EXPECT_EQ(cell->Value(), Variant(200.0));
    EXPECT_EQ(cell->PercentValue(), Currency{});
}

TEST_F(CellTest, WholePercentagesOfAHundredStayWhole) {
    const auto cell = Add(qgctPercent, 0);
    for (int percentage = 1; percentage <= 100; ++percentage) {
        cell->SetPercentValue(Money(percentage));
        EXPECT_EQ(cell->Value(), Variant(static_cast<double>(percentage)));
    }
    const double half = std::numeric_limits<double>::max() / 2;
    cell->SetMax(half);
    cell->SetPercentValue(Money(100));
    EXPECT_EQ(cell->Value(), Variant(half));
}

TEST_F(CellTest, PercentageOfAShiftedRangeIgnoresItsStart) {
    const auto cell = Add(qgctNumber, 10);
    cell->SetMin(10);
    cell->SetMax(20);
    EXPECT_EQ(cell->PercentValue(), Money(100));
}

TEST_F(CellTest, GroupAsksForRegroupingOnlyWhenTheKeyIsAnother) {
    const auto cell = cells.Add({.Group = "Main"});
    owner.TakeCalls();
    cell->SetGroup("MAIN");
    EXPECT_EQ(owner.TakeCalls(), Calls{});
    EXPECT_EQ(cell->Group(), "Main");
    cell->SetGroup("Other");
    EXPECT_EQ(owner.TakeCalls(), Calls{"order"});
    cell->Define({.NewGroup = "Third"});
    EXPECT_EQ(owner.TakeCalls(), Calls{});
    EXPECT_EQ(cell->Group(), "Third");
}

TEST_F(CellTest, LookAsksForARepaintWhenItChanges) {
    const auto cell = Add(qgctNone, "a");
    EXPECT_FALSE(CellAccess::RepaintPending(*cell));
    EXPECT_FALSE(CellAccess::HasOwnForeColor(*cell));
    cell->SetForeColor(0x112233);
    cell->SetFontBold(true);
    EXPECT_FALSE(CellAccess::RepaintPending(*cell));
    cell->SetFontItalic(true);
    EXPECT_TRUE(CellAccess::RepaintPending(*cell));
    cell->SetForeColor(5);
    EXPECT_TRUE(CellAccess::HasOwnForeColor(*cell));
}

TEST_F(CellTest, ClearGivesBackTheFirstValuesAndKeepsPlaceAndAllowedDays) {
    const auto cell =
        cells.Add({.Key = "k", .Caption = "&c", .Value = "x", .CellTemplate = qgctPhone, .Group = "g"});
    auto& items = cell->Listitems();
    items.Add({.Text = "entry", .ListImage = "i"});
    cell->SetAllowSunday(false);
    cell->SetForeColor(1);
    cell->SetUserLevelEnabled(4);
    cell->SetMin(3);
    cell->SetIncrement(Money(9));
    cell->SetForeignKey("id");
    cell->Settag(std::make_shared<std::any>(1));
    CellAccess::SetScrollOffset(*cell, 5);
    CellAccess::SetArea(*cell, CellArea::Value, {1, 2, 3, 4});
    cell->SetValue("changed");
    cell->Clear();

    EXPECT_EQ(cell->Key(), "k");
    EXPECT_EQ(cell->Index(), 1);
    EXPECT_FALSE(cell->AllowSunday());
    EXPECT_EQ(CellAccess::Owner(*cell), &owner);

    EXPECT_EQ(cell->Caption(), "");
    EXPECT_EQ(CellAccess::Label(*cell).AccessKey(), 0);
    EXPECT_EQ(&items, &cell->Listitems());
    EXPECT_EQ(items.Count(), 0);
    EXPECT_FALSE(items.HasImages());
    EXPECT_TRUE(cell->Value().IsNull());
    EXPECT_TRUE(CellAccess::UndoValue(*cell).IsNull());
    EXPECT_FALSE(cell->Changed());
    EXPECT_EQ(cell->Text(), "");
    EXPECT_EQ(cell->ItemData(), Variant(std::int16_t{0}));
    EXPECT_EQ(cell->Template(), qgctNone);
    EXPECT_EQ(cell->Charlist(), "");
    EXPECT_TRUE(cell->ListImage().IsNull());
    EXPECT_EQ(cell->Button(), qgbtNone);
    EXPECT_EQ(cell->Group(), "");
    EXPECT_EQ(cell->ForeColor(), ColourWindowText);
    EXPECT_FALSE(cell->FontBold());
    EXPECT_FALSE(CellAccess::RepaintPending(*cell));
    EXPECT_EQ(cell->UserLevelEnabled(), 0);
    EXPECT_TRUE(cell->Min().IsNull());
    EXPECT_EQ(cell->Increment(), Money(1));
    EXPECT_EQ(cell->ForeignKey(), "");
    EXPECT_TRUE(cell->tag().IsNull());
    EXPECT_EQ(CellAccess::ScrollOffset(*cell), 0);
    EXPECT_EQ(cell->Width(), 0);
}

TEST_F(CellTest, RareFieldsReadBackAndMissingMinimumIsNull) {
    const auto cell = Add(qgctNone, "a");
    cell->SetMin(Variant());
    EXPECT_TRUE(cell->Min().IsNull());
    cell->SetTooltipText("tip");
    cell->SetTooltipText("");
    EXPECT_EQ(cell->TooltipText(), "");
    cell->SetRecordSource("t");
    cell->SetForeignIndex("i");
    EXPECT_EQ(cell->RecordSource() + cell->ForeignIndex() + cell->ForeignField(), "ti");
    const auto object = std::make_shared<std::any>(42);
    cell->Settag(object);
    EXPECT_EQ(*cell->tag().Get<ObjectReference>(), object);
    cell->DefineRestrictions(1, 2, 3);
    EXPECT_EQ(cell->UserlevelVisible(), 1);
    EXPECT_EQ(cell->UserLevelDataVisible(), 2);
    EXPECT_EQ(cell->UserLevelEnabled(), 3);
}

TEST_F(CellTest, AreasFollowTheScrollOffset) {
    const auto cell = Add(qgctNone, "a");
    CellAccess::SetScrollOffset(*cell, 30);
    CellAccess::SetArea(*cell, CellArea::Button, {1, 10, 5, 20});
    CellAccess::Label(*cell).Move(0, 10, 50, 15);
    EXPECT_EQ(CellAccess::Area(*cell, CellArea::Button), (Rect{1, 10, 5, 20}));
    EXPECT_EQ(CellAccess::Label(*cell).Top(), 40);
    CellAccess::SetScrollOffset(*cell, 50);
    EXPECT_EQ(CellAccess::Area(*cell, CellArea::Button), (Rect{1, -10, 5, 0}));
    EXPECT_EQ(CellAccess::Label(*cell).SeenAt(), (Rect{0, -10, 50, 5}));

    const Rect extreme{INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};
    CellAccess::SetArea(*cell, CellArea::Second, extreme);
    EXPECT_EQ(CellAccess::Area(*cell, CellArea::Second), extreme);
}

TEST_F(CellTest, DefineDataEndsSilenceAndKeepsBoundsThatAreNotGiven) {
    const auto cell = Add(qgctInteger, 1);
    cell->SetMin(0);
    owner.Quiet = true;
    cell->DefineData(
        {.NewValue = 50, .NewValidationRule = qgvrInteger, .newMax = 10, .newAllowEmpty = false});
    EXPECT_FALSE(owner.Quiet);
    EXPECT_EQ(cell->Min(), Variant(0));
    EXPECT_EQ(cell->Value(), Variant(10));
    EXPECT_FALSE(cell->Changed());
    cell->SetValue(Variant::Null());
    EXPECT_EQ(cell->Value(), Variant(10));
}

TEST_F(CellTest, RecordNullEmptiesACellThatMayNotBeEmpty) {
    const auto cell = Add(qgctInteger, 1);
    cell->SetAllowEmpty(false);
    CellAccess::LoadValue(*cell, Variant::Null());
    EXPECT_TRUE(cell->Value().IsNull());
    EXPECT_EQ(cell->Text(), "");
    EXPECT_TRUE(cell->Changed());
    CellAccess::LoadValue(*cell, "7");
    EXPECT_EQ(cell->Value(), Variant(7));

    const auto yes = Add(qgctboolean, true);
    CellAccess::LoadValue(*yes, Variant::Null());
    EXPECT_EQ(yes->ListIndex(), -1);
    EXPECT_TRUE(yes->Value().IsNull());
    EXPECT_EQ(yes->Text(), "");
    EXPECT_TRUE(yes->ListImage().IsNull());
}

TEST_F(CellTest, TextOfAnyBytesAndLengthIsTaken) {
    const auto cell = Add(qgctNone, "a");
    cell->SetMaxLength(-3);
    cell->SetText("abc");
    EXPECT_EQ(cell->Text(), "");
    cell->SetMaxLength(1'000'000);
    cell->SetText(std::string(300'000, '\xFF'));
    EXPECT_TRUE(IsValidUtf8(cell->Text()));
    cell->SetFormat(std::string(5'000, '\x80'));
    cell->SetStyle(static_cast<CellStyleConstants>(77));
    cell->SetValidationRule(static_cast<ValidationRuleConstants>(-9));
    CellAccess::RefreshStaleText(*cell);
    cell->SetValue(std::numeric_limits<double>::quiet_NaN());
    cell->Undo();
}

TEST(FreeCell, WorksWithBuiltInSurroundings) {
    const auto cell = std::make_shared<Cell>();
    cell->Define({.NewCaption = "&x", .NewValue = 1234.5, .NewCellTemplate = qgctCurrency});
    EXPECT_EQ(cell->Value(), Variant(*Currency::FromDouble(1234.5)));
    EXPECT_NE(cell->Text().find("1.234,50"), std::string::npos) << cell->Text();
    for (std::int32_t number = -1; number <= 100; ++number) {
        cell->Define({.NewCellTemplate = static_cast<CellTemplateConstants>(number)});
        cell->SetText("12");
        cell->Refresh();
        cell->SetFocus();
        CellAccess::TypeAhead(*cell, U'a');
    }
}

} // namespace quillgrid::test
