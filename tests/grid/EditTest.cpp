#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <tuple>

namespace quillgrid {
namespace {

using headless::FocusPlace;
using headless::HeadlessHost;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

/// A form with a few cells of each way of editing, entered at its first row.
class Edit : public ::testing::Test {
protected:
    Edit() {
        Add("date", Variant(DateTime{*DayFromParts(2026, 1, 31), 0}), qgctDate);
        Add("name", Variant("Ann"), qgctNone);
        Add("count", Variant(5), qgctInteger);
        Add("price", Variant(12.5), qgctCurrency);
        Add("flag", Variant(true), qgctboolean);
        const auto fruit = Add("fruit", Variant("Apple"), qgctlist);
        for (const char* text : {"Apple", "Banana", "Berry", "Beta"})
            fruit->Listitems().Add({.Text = text});
        const auto city = Add("city", Variant(), qgctCombo);
        for (const char* text : {"Berlin", "Bern"})
            city->Listitems().Add({.Text = text});
        host.Grid->Refresh();
        host.EnterControl();
        host.RecordEvents();
        host.Journal.Clear();
    }

    std::shared_ptr<Cell> Add(const char* key, Variant value, CellTemplateConstants number) {
        return host.Grid->Add(
            {.Key = key, .Caption = Variant(key), .Value = std::move(value), .CellTemplate = number});
    }
    Cell& At(const char* key) { return *host.Grid->Cells().Item(key); }
    void GoTo(const char* key) {
        At(key).SetFocus();
        host.Journal.Clear();
    }
    /// The journal without keys.
    std::vector<std::string> Taken() {
        std::vector<std::string> entries;
        for (auto& entry : host.Journal.Take()) {
            if (!entry.starts_with("Key")) entries.push_back(std::move(entry));
        }
        return entries;
    }

    HeadlessHost host;
};

TEST_F(Edit, TypedDateAndEnterTellTheHostInOrderAndMoveOn) {
    host.Type("3.5.");
    EXPECT_EQ(host.Box.Text(), "3.5.");
    host.Journal.Clear();
    host.Press(KeyEnter);
    EXPECT_THAT(host.Journal.Take(),
                ElementsAre("KeyDown date 13", "KeyPress date 13", "repaint 10,10 - 289,28",
                            "ValidateCell date", "repaint 10,10 - 289,28", "Change date",
                            "repaint 10,10 - 289,28", "repaint 10,28 - 289,46", "SelChange name",
                            "KeyUp name 13"));
    EXPECT_EQ(At("date").Text(), "03.05.2026");
    EXPECT_FALSE(At("date").Changed());
    EXPECT_EQ(host.Box.Text(), "Ann");
    EXPECT_EQ(host.Box.SelectionLength(), 3U);
    EXPECT_EQ(host.Box.Area.Top, 29);
}

TEST_F(Edit, RefusedTextKeepsTheOldValueShowsTheErrorAndCanKeepTheUser) {
    bool stay = true;
    Colour inkInside = 0;
    ValidationErrConstants codeInside = qgErrNone;
    host.Grid->ValidateCellError.Listen([&](Cell& cell, ValidationErrConstants& code, bool& cancel) {
        inkInside = host.Box.CurrentLook.Ink;
        codeInside = cell.ErrorCode();
        EXPECT_FALSE(host.Grid->Valid());
        EXPECT_EQ(host.Grid->ErrorMessage(code).empty(), false);
        EXPECT_EQ(host.Box.Text(), "31.02.2026");
        EXPECT_FALSE(host.Grid->ValueArea(cell).IsEmpty());
        code = qgErrNone;
        cancel = stay;
    });
    host.Type("31.02.2026");
    host.Journal.Clear();
    host.Press(KeyEnter);
    EXPECT_EQ(inkInside, Rgb(255, 0, 0));
    EXPECT_EQ(codeInside, qgerrBadDate);
    EXPECT_EQ(host.Box.CurrentLook.Ink, ColourWindowText);
    EXPECT_THAT(Taken(), ElementsAre("ValidateCellError date 20002", "repaint 10,10 - 289,28"));
    EXPECT_EQ(host.Grid->CurrentRow(), 1);
    EXPECT_EQ(host.Box.Text(), "31.01.2026");
    EXPECT_EQ(host.Box.SelectionLength(), 10U);
    EXPECT_EQ(host.Focus, FocusPlace::EditBox);
    stay = false;
    host.Type("31.02.2026");
    host.Journal.Clear();
    host.Press(KeyEnter);
    EXPECT_THAT(Taken(), ElementsAre("ValidateCellError date 20002", "repaint 10,10 - 289,28", "Change date",
                                     "repaint 10,10 - 289,28", "repaint 10,28 - 289,46", "SelChange name"));
    EXPECT_EQ(At("date").Text(), "31.01.2026");
    EXPECT_TRUE(host.Grid->Valid());
}

TEST_F(Edit, NothingTypedMeansNoEventAndNoOverwriting) {
    GoTo("name");
    host.Press(KeyEnter);
    EXPECT_THAT(Taken(), ElementsAre("repaint 10,28 - 289,46", "repaint 10,46 - 289,64", "SelChange count"));
    GoTo("name");
    host.Type("ANN"); // another case is no other text
    host.Press(quillgrid::KeyDown);
    EXPECT_THAT(Taken(), Not(Contains("Change name")));
    GoTo("name");
    host.Type("x");
    At("name").SetValue(Variant("from code")); // replaces what stands in the box
    host.Press(KeyEnter);
    EXPECT_EQ(At("name").Text(), "from code");
}

TEST_F(Edit, ValidateCellCanKeepTheUserButTheValueStays) {
    GoTo("count");
    host.Grid->ValidateCell.Listen([](Cell&, bool& cancel) { cancel = true; });
    host.Type("42");
    host.Press(quillgrid::KeyDown);
    EXPECT_EQ(host.Grid->Cell()->Key(), "count");
    EXPECT_EQ(At("count").Text(), "42");
    EXPECT_THAT(Taken(), Not(Contains("Change count")));
    host.Press(quillgrid::KeyDown); // nothing is new any more: the user is not trapped
    EXPECT_EQ(host.Grid->Cell()->Key(), "price");
}

TEST_F(Edit, EnterWithoutAllowEnterCommitsInPlace) {
    host.Grid->SetAllowEnter(false);
    GoTo("price");
    host.Type("1.234,5");
    host.Press(KeyEnter);
    EXPECT_EQ(host.Grid->Cell()->Key(), "price");
    EXPECT_EQ(host.Box.Text(), "1.234,50 \u20ac");
    EXPECT_THAT(Taken(), Contains("Change price"));
}

TEST_F(Edit, EscapeReturnsToTheLastCommittedValue) {
    GoTo("name");
    host.Type("Bob");
    host.Press(KeyEscape);
    EXPECT_EQ(host.Box.Text(), "Ann");
    EXPECT_EQ(At("name").Text(), "Ann");
    host.Grid->SetAllowEscape(false);
    host.Type("Bob");
    host.Press(KeyEscape);
    EXPECT_EQ(host.Box.Text(), "Bob");
    host.Press(KeyEnter);
    EXPECT_EQ(At("name").Text(), "Bob");
}

TEST_F(Edit, EscapeRepaintsItsOwnRowAndRefreshesNothingElse) {
    GoTo("name");
    At("name").SetValue(Variant("changed"));
    At("flag").SetVisible(false);
    host.Grid->SetSorted(true); // seen after the next Refresh
    host.Grid->SetSilent(true);
    host.Journal.Clear();
    host.Press(KeyEscape);
    EXPECT_EQ(host.Box.Text(), "Ann");
    EXPECT_THAT(Taken(), IsEmpty()) << "rows of a silent control wait";
    EXPECT_TRUE(host.Grid->Silent());
    EXPECT_EQ(host.Grid->RowCount(), 7);
    host.Grid->SetSilent(false);
    host.Press(KeyEscape);
    EXPECT_THAT(Taken(), ElementsAre("repaint 10,28 - 289,46"));
    EXPECT_EQ(host.Grid->RowCount(), 7);
}

TEST_F(Edit, LeavingTheControlCommitsAndHidesTheBoxUntilTheFocusIsBack) {
    GoTo("name");
    host.Type("Bob");
    host.LeaveControl();
    EXPECT_THAT(Taken(), Contains("Change name"));
    EXPECT_FALSE(host.Box.Visible);
    host.Grid->Refresh();
    EXPECT_FALSE(host.Box.Visible);
    host.EnterControl();
    EXPECT_TRUE(host.Box.Visible);
    EXPECT_EQ(host.Box.Text(), "Bob");
    EXPECT_EQ(host.Box.SelectionLength(), 3U);
    host.Grid->ValidateCell.Listen([](Cell&, bool& cancel) { cancel = true; });
    host.Type("Cid");
    host.LeaveControl();
    EXPECT_EQ(host.Focus, FocusPlace::EditBox);
    EXPECT_TRUE(host.Box.Visible);
}

TEST_F(Edit, TypedTextSurvivesRefreshResizeAndScrollingInView) {
    GoTo("name");
    host.Type("Bo");
    host.Grid->Refresh();
    host.ResizeTo({400, 90});
    host.Type("b");
    EXPECT_EQ(host.Box.Text(), "Bob");
    EXPECT_TRUE(host.Grid->CommitEdit());
    EXPECT_EQ(At("name").Text(), "Bob");
}

TEST_F(Edit, FilterBeepsForWhatTheRuleDoesNotAllow) {
    GoTo("count");
    host.Type("7x8");
    EXPECT_EQ(host.Box.Text(), "78");
    EXPECT_EQ(host.Surface.Beeps, 1);
    EXPECT_THAT(Taken(), ElementsAre("Beep"));
    At("count").SetMin(Variant(-10));
    GoTo("price");
    GoTo("count");
    host.Type("-3");
    host.Press(KeyEnter);
    EXPECT_EQ(At("count").Text(), "-3");
    At("price").SetMin(Variant(-10));
    GoTo("price");
    host.Type("4-"); // the sign goes to the front from wherever it is typed
    EXPECT_EQ(host.Box.Text(), "-4");
    EXPECT_FALSE(host.Grid->PasteAllowed());
    EXPECT_TRUE(host.Press(KeyInsert, ShiftShift));
    EXPECT_TRUE(host.Press(KeyV, ShiftControl));
    GoTo("name");
    EXPECT_FALSE(host.Press(KeyInsert, ShiftShift));
}

TEST_F(Edit, PlusAndMinusStepNumbersAndDatesWithinTheLimits) {
    host.Type("+");
    EXPECT_EQ(At("date").Text(), "01.02.2026");
    EXPECT_THAT(Taken(), Contains("Change date"));
    host.Type("--");
    EXPECT_EQ(At("date").Text(), "30.01.2026");
    GoTo("count");
    At("count").SetMax(Variant(6));
    At("count").SetIncrement(*Currency::FromDouble(0.5));
    host.Type("++");
    EXPECT_EQ(At("count").Text(), "6"); // 5.5 rounds to 6; the limit is reached
    EXPECT_EQ(host.Surface.Beeps, 1);
    host.Type("3+"); // typed first, then stepped
    EXPECT_EQ(At("count").Text(), "4");
    GoTo("price");
    At("price").SetValue(Variant::Null());
    At("price").SetMin(Variant(0));
    host.Type("-");
    EXPECT_EQ(host.Surface.Beeps, 2);
    host.Type("+");
    EXPECT_EQ(At("price").Text(), "1,00 \u20ac");
}

TEST_F(Edit, ListsSelectByTypingAndBooleansToggle) {
    GoTo("fruit");
    host.Type("be");
    EXPECT_EQ(At("fruit").Text(), "Berry");
    EXPECT_EQ(host.Box.Text(), "Berry");
    EXPECT_TRUE(host.Box.CurrentLook.ReadOnly);
    const auto events = Taken();
    EXPECT_EQ(std::count(events.begin(), events.end(), "Change fruit"), 2);
    host.Press(KeyEnter);
    EXPECT_THAT(Taken(), Contains("ValidateCell fruit"));
    EXPECT_EQ(At("fruit").Text(), "Berry");
    GoTo("flag");
    host.Type(" ");
    EXPECT_EQ(At("flag").Text(), "nein");
    host.Press(KeyF4);
    EXPECT_EQ(At("flag").Text(), "ja");
    EXPECT_THAT(Taken(), Contains("Change flag"));
}

TEST_F(Edit, CompletionOffersTheRestOfTheFirstEntry) {
    GoTo("city");
    host.Type("ber");
    EXPECT_EQ(host.Box.Text(), "Berlin");
    EXPECT_EQ(host.Box.SelectionStart(), 3U);
    EXPECT_EQ(host.Box.SelectionLength(), 3U);
    host.Type("n");
    EXPECT_EQ(host.Box.Text(), "Bern");
    EXPECT_EQ(host.Box.SelectionLength(), 4U);
    host.Type("Ber");
    host.Press(KeyBackspace); // takes the offer back
    EXPECT_EQ(host.Box.Text(), "Ber");
    host.Press(KeyEnter);
    EXPECT_EQ(At("city").Text(), "Ber");
}

TEST_F(Edit, WhoMayNotChangeACellCannotByAnyKey) {
    for (const char* key : {"name", "count", "flag", "fruit"}) {
        At(key).SetLocked(true);
        GoTo(key);
        const std::string before = At(key).Text();
        const int beeps = host.Surface.Beeps;
        host.Type("b+");
        host.Press(KeyF4);
        host.Press(KeyEscape);
        EXPECT_TRUE(host.Box.CurrentLook.ReadOnly) << key;
        EXPECT_GT(host.Surface.Beeps, beeps) << key;
        EXPECT_EQ(At(key).Text(), before) << key;
    }
    At("date").SetDataVisible(false);
    GoTo("date");
    EXPECT_FALSE(host.Box.Visible);
    host.Type("1.1.");
    EXPECT_EQ(At("date").Text(), "31.01.2026");
}

TEST_F(Edit, UnitsAreNotReadAsDigitsAndCaseRulesApply) {
    const auto area = Add("area", Variant(12.5), qgctNumber);
    area->SetUnit("m2");
    area->SetFormat("Fixed");
    const auto code = Add("code", Variant(""), qgctNone);
    code->SetCharCase(qgccNice);
    code->SetMaxLength(12);
    host.Grid->Refresh();
    ASSERT_EQ(area->Text(), "12,50 m2");
    GoTo("area");
    host.Box.SetText("13,5 m2");
    host.Press(KeyEnter);
    EXPECT_EQ(area->Text(), "13,50 m2");
    GoTo("code");
    host.Type("anna maria louise");
    EXPECT_EQ(host.Box.Text(), "Anna Maria Lo"); // one more than allowed may be typed, then no more
    EXPECT_EQ(host.Surface.Beeps, 4);
}

TEST_F(Edit, HostMayChangeOrDropKeys) {
    GoTo("name");
    auto connection =
        host.Grid->KeyPressed.Connect([](Cell&, std::int16_t& key) { key = key == 'a' ? 'b' : 0; });
    host.Type("ax\U0001F600a");
    EXPECT_EQ(host.Box.Text(), "bb");
    connection.Disconnect();
    host.Type("\U0001F600");
    EXPECT_EQ(host.Box.Text(), "bb\U0001F600");
    auto noKeys = host.Grid->KeyWentDown.Connect([](Cell&, std::int16_t& code, std::int16_t&) { code = 0; });
    host.Press(quillgrid::KeyDown);
    host.Type("c");
    EXPECT_EQ(host.Grid->Cell()->Key(), "name");
    EXPECT_EQ(host.Box.Text(), "bb\U0001F600");
}

TEST_F(Edit, HandlersTurnOneKeyIntoAnother) {
    struct Row {
        std::int16_t From, To, Held;
        const char* Then; ///< the current cell afterwards
    };
    for (const auto& [from, to, held, then] :
         {Row{quillgrid::KeyDown, quillgrid::KeyUp, 0, "date"}, Row{KeyF1, KeyTab, 0, "count"},
          Row{KeyF1, KeyTab, ShiftShift, "date"}, Row{KeyEnter, 0, 0, "name"},
          Row{quillgrid::KeyDown, quillgrid::KeyDown, ShiftAlt, "name"}}) {
        GoTo("name");
        const auto connection =
            host.Grid->KeyWentDown.Connect([&](Cell&, std::int16_t& code, std::int16_t& shift) {
                if (code == from) std::tie(code, shift) = std::pair(to, held);
            });
        host.Press(from);
        EXPECT_EQ(host.Grid->Cell()->Key(), then) << from << " as " << to;
    }
    GoTo("count");
    const auto digits = host.Grid->KeyPressed.Connect(
        [](Cell&, std::int16_t& key) { key = static_cast<std::int16_t>(key == 'x' ? '7' : 'x'); });
    host.Type("x3");
    EXPECT_EQ(host.Box.Text(), "7") << "what a handler makes of a key passes the filter, and nothing else";
    EXPECT_THAT(Taken(), ElementsAre("Beep"));
}

TEST_F(Edit, HandlerThatAlwaysCancelsHoldsTheUserOnceForEachTextTyped) {
    using Way = void (*)(HeadlessHost&);
    const Way ways[] = {
        [](HeadlessHost& h) { h.Press(KeyEnter); },
        [](HeadlessHost& h) { h.Press(quillgrid::KeyUp); },
        [](HeadlessHost& h) { h.Press(KeyTab); },
        [](HeadlessHost& h) { h.Press(KeyPageDown); },
        [](HeadlessHost& h) { h.Press(KeyHome, ShiftControl); },
        [](HeadlessHost& h) {
            h.Grid->MouseDown({12, 70});
        },
        [](HeadlessHost& h) { h.Grid->AccessKeyPress(U'f'); },
        [](HeadlessHost& h) { h.Grid->Cells().Item("flag")->SetFocus(); },
        [](HeadlessHost& h) { h.LeaveControl(); },
        [](HeadlessHost& h) { h.Grid->CommitEdit(); },
        [](HeadlessHost& h) {
            h.Grid->DropText({100, 30}, "dropped");
        },
    };
    At("flag").SetCaption("&flag");
    host.Grid->Refresh();
    host.Grid->ValidateCellError.Listen([](Cell&, ValidationErrConstants&, bool& cancel) { cancel = true; });
    host.Grid->ValidateCell.Listen([](Cell&, bool& cancel) { cancel = true; });
    for (const Way& way : ways) {
        for (const char* text : {"99999999999", "42"}) {
            SCOPED_TRACE(std::to_string(&way - ways) + text);
            At("count").SetValue(Variant(5));
            At("count").Refresh();
            host.Focus = FocusPlace::EditBox;
            GoTo("count");
            host.Type(text);
            host.Journal.Clear();
            way(host);
            const auto first = Taken();
            EXPECT_EQ(
                std::count_if(first.begin(), first.end(), [](const auto& e) { return e.starts_with("Val"); }),
                1);
            EXPECT_THAT(first, Not(Contains(::testing::StartsWith("Change"))));
            EXPECT_EQ(host.Grid->Cell()->Key(), "count");
            EXPECT_EQ(host.Focus, FocusPlace::EditBox);
            EXPECT_EQ(host.Box.SelectionLength(), host.Box.Text().size()) << "all of it, to be replaced";
            way(host);
            EXPECT_THAT(Taken(), Not(Contains(::testing::HasSubstr(" count")))) << "nothing new to check";
        }
    }
}

TEST_F(Edit, HandlersThatCancelMaySendTheUserToAnotherCell) {
    host.Grid->ValidateCell.Listen([&](Cell&, bool& cancel) {
        cancel = true;
        At("flag").SetFocus();
    });
    const std::function<void()> ways[] = {
        [&] { host.Press(quillgrid::KeyDown); },
        [&] { host.Press(KeyTab, ShiftShift); },
        [&] {
            host.Grid->MouseDown({100, 15});
        },
        [&] { At("city").SetFocus(); },
        [&] { host.LeaveControl(); },
        [&] { EXPECT_FALSE(host.Grid->CommitEdit()); },
    };
    std::int32_t value = 40;
    for (const auto& way : ways) {
        SCOPED_TRACE(&way - ways);
        GoTo("count");
        host.Type(std::to_string(++value));
        way();
        EXPECT_EQ(host.Grid->Cell()->Key(), "flag");
        EXPECT_EQ(host.Focus, FocusPlace::EditBox);
        EXPECT_TRUE(host.Box.Visible);
        EXPECT_EQ(At("count").Text(), std::to_string(value));
        EXPECT_THAT(Taken(), Not(Contains("Change count")));
    }
}

TEST_F(Edit, LeavingAndComingBackTellTheHostInOrder) {
    GoTo("name");
    host.Type("Bob");
    host.Journal.Clear();
    host.LeaveControl();
    EXPECT_THAT(host.Journal.Take(),
                ElementsAre("repaint 10,28 - 289,46", "ValidateCell name", "repaint 10,28 - 289,46",
                            "Change name", "repaint 10,28 - 289,46"));
    host.EnterControl();
    EXPECT_THAT(host.Journal.Take(), IsEmpty()) << "the same row is current still";
    EXPECT_EQ(host.Focus, FocusPlace::EditBox);
}

TEST_F(Edit, HandlersMaySendTheFocusElsewhereInTheMidstOfACommit) {
    host.Grid->Change.Listen([&](Cell&) { host.LeaveControl(); });
    GoTo("name");
    host.Type("Bob");
    host.Press(KeyEnter);
    EXPECT_EQ(At("name").Text(), "Bob");
    EXPECT_EQ(host.Grid->Cell()->Key(), "count");
    EXPECT_FALSE(host.Box.Visible) << "nobody edits there";
    EXPECT_EQ(host.Focus, FocusPlace::Outside);
}

TEST_F(Edit, NobodyEditsAfterLeavingWhateverHandlersDoToTheCell) {
    const std::function<void(Cell&)> deeds[] = {
        [&](Cell& cell) { host.Grid->Cells().Remove(cell.Key()); },
        [&](Cell& cell) {
            cell.SetVisible(false);
            host.Grid->SetSorted(true);
            host.Grid->Refresh();
        },
    };
    for (const auto& deed : deeds) {
        SCOPED_TRACE(&deed - deeds);
        const auto changes = host.Grid->Change.Connect([&](Cell& cell) { deed(cell); });
        At("name").SetFocus();
        host.Type("Bob");
        host.LeaveControl();
        EXPECT_NE(host.Grid->Cell()->Key(), "name");
        EXPECT_FALSE(host.Box.Visible);
        host.Grid->Refresh();
        EXPECT_FALSE(host.Box.Visible);
        if (!host.Grid->Cells().Find("name")) Add("name", Variant("Ann"), qgctNone);
        host.Grid->Refresh();
        host.EnterControl();
    }
}

TEST_F(Edit, HandlersMaySendTheUserBackWhoIsJustLeaving) {
    for (const char* where : {"name", "count"}) {
        SCOPED_TRACE(where);
        const auto changes = host.Grid->Change.Connect([&](Cell&) { At(where).SetFocus(); });
        GoTo("name");
        host.Type("Bob");
        host.Type(where);
        host.LeaveControl();
        EXPECT_EQ(host.Grid->Cell()->Key(), where);
        EXPECT_EQ(host.Focus, FocusPlace::EditBox);
        EXPECT_TRUE(host.Box.Visible);
    }
}

TEST_F(Edit, DoubleClickIsF4WhereThereIsAButton) {
    GoTo("flag");
    At("flag").SetButton(qgbtNone);
    host.Grid->DoubleClick({100, 80});
    EXPECT_EQ(At("flag").Text(), "ja");
    host.Press(KeyF4);
    EXPECT_EQ(At("flag").Text(), "nein");
    At("flag").SetButton(qgbtEllipse);
    host.Grid->DoubleClick({100, 80});
    EXPECT_EQ(host.Pads->ShownWindows(), 1);
    EXPECT_EQ(At("flag").Text(), "nein");
}

TEST_F(Edit, NothingAddsToATextThatIsFull) {
    At("price").SetMin(Variant(-10));
    At("price").SetMaxLength(2);
    GoTo("price");
    host.Type("123");
    host.Type("-4"); // neither behind nor in front
    EXPECT_EQ(host.Box.Text(), "123");
    EXPECT_EQ(host.Surface.Beeps, 2);
    host.Type("+"); // no character
    EXPECT_EQ(At("price").Text(), "124,00 \u20ac");
}

TEST_F(Edit, EachStepShowsTheValueSelected) {
    At("price").SetFormat("0"); // both show the same
    At("price").SetIncrement(*Currency::FromDouble(0.1));
    host.Grid->Refresh();
    GoTo("price");
    host.Box.Select(1, 0);
    host.Type("+");
    EXPECT_EQ(host.Box.SelectionLength(), host.Box.Text().size());
}

TEST_F(Edit, PasswordsStandNowhereWithoutTheirMask) {
    Add("secret", Variant("geheim"), qgctPassword);
    host.Grid->Refresh();
    for (int i = 0; i < 20; ++i)
        host.Press(i % 3 == 2 ? quillgrid::KeyUp : quillgrid::KeyDown);
    GoTo("secret");
    host.LeaveControl();
    host.EnterControl();
    GoTo("name");
    EXPECT_THAT(host.Box.ReadByAll, Contains("Ann"));
    EXPECT_THAT(host.Box.ReadByAll, Not(Contains("geheim")));
}

TEST_F(Edit, SilentKeepsChangeAndValidateCellBackUntilRefresh) {
    GoTo("name");
    host.Grid->SetSilent(true);
    host.Type("Bob");
    host.Press(quillgrid::KeyDown);
    EXPECT_THAT(Taken(), ElementsAre("repaint 10,28 - 289,46", "repaint 10,28 - 289,46",
                                     "repaint 10,46 - 289,64", "SelChange count"));
    EXPECT_EQ(At("name").Text(), "Bob");
    host.Grid->Refresh();
    EXPECT_FALSE(host.Grid->Silent());
}

class OneField : public Record {
public:
    std::optional<Variant> Field(std::string_view name) const override {
        if (name == "name") return Variant("Zoe");
        if (name == "count") return Variant::Null();
        return std::nullopt;
    }
};

TEST_F(Edit, RecordsReplaceWhatIsBeingTyped) {
    At("count").SetAllowEmpty(false);
    GoTo("name");
    host.Type("typed");
    host.Grid->LoadRecord(OneField());
    EXPECT_EQ(host.Box.Text(), "Zoe");
    EXPECT_EQ(At("count").Text(), "");
    EXPECT_EQ(At("price").Text(), "12,50 \u20ac");
    EXPECT_TRUE(host.Grid->Changed());
    EXPECT_THAT(Taken(), Not(Contains("Change name")));
    At("price").SetDefault(Variant(3));
    host.Type("typed");
    host.Grid->AddNew();
    EXPECT_EQ(host.Box.Text(), "");
    EXPECT_EQ(At("fruit").ListIndex(), -1);
    EXPECT_EQ(At("price").Text(), "3,00 \u20ac");
    EXPECT_FALSE(host.Grid->Changed());
    host.Press(KeyEnter);
    EXPECT_EQ(At("name").Text(), "");
}

} // namespace
} // namespace quillgrid
