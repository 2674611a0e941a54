#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

namespace quillgrid {
namespace {

using headless::HeadlessHost;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Entries = std::vector<std::string>;

DateTime Date(std::int32_t year, std::int32_t month, std::int32_t day) {
    return {*DayFromParts(year, month, day), 0};
}

class Pad : public ::testing::Test {
protected:
    Pad() {
        Add("date", Variant(Date(2026, 4, 2)), qgctDate).SetButton(qgbtClock);
        Add("time", Variant(), qgctTime).SetButton(qgbtClock);
        Fill(Add("fruit", Variant("Berry"), qgctlist), {"Apple", "Banana", "Berry"});
        Fill(Add("city", Variant(), qgctCombo), {"Berlin", "Bern"});
        At("city").SetValue(Variant("Bonn"));
        Fill(Add("none", Variant(), qgctCombo), {"x", "y"});
        At("none").SetStyle(qgcsList);
        Add("price", Variant(), qgctCurrency).SetButton(qgbtCalc);
        Add("euro", Variant(100), qgctEuro);
        Add("flag", Variant(false), qgctboolean);
        Add("file", Variant(), qgctFile);
        host.Grid->Update();
        host.EnterControl();
        host.RecordEvents();
    }

    Cell& Add(const char* key, Variant value, CellTemplateConstants number) {
        return *host.Grid->Add(
            {.Key = key, .Caption = Variant(key), .Value = std::move(value), .CellTemplate = number});
    }
    static void Fill(Cell& cell, std::initializer_list<const char*> texts) {
        const Variant value = cell.Value().IsNull() ? Variant(cell.Text()) : cell.Value();
        cell.Listitems().Clear();
        for (const char* text : texts)
            cell.Listitems().Add({.Text = text});
        if (cell.Style() == qgcsList) cell.SetListIndex(cell.Listitems().Count());
    }
    Cell& At(const char* key) { return *host.Grid->Cells().Item(key); }
    Point OnButton(const char* key) {
        const Rect area = host.Grid->ValueArea(At(key));
        return {area.Right - 5, area.Top + 5};
    }
    void PressButton(const char* key) {
        host.Grid->MouseDown(OnButton(key));
        if (host.Grid) host.Grid->MouseUp(OnButton(key));
    }
    /// Makes the cell current, opens its pad and forgets how that went.
    void Open(const char* key) {
        At(key).SetFocus();
        host.Press(KeyF4);
        host.Journal.Clear();
    }
    /// What happened, without keys and repaints.
    Entries Taken() {
        Entries entries;
        for (auto& entry : host.Journal.Take()) {
            if (!entry.starts_with("Key") && !entry.starts_with("repaint"))
                entries.push_back(std::move(entry));
        }
        return entries;
    }

    HeadlessHost host{{300, 300}};
};

TEST_F(Pad, EachButtonOpensWhatItsCellNeedsBelowTheCell) {
    const struct {
        const char* Key;
        Entries Opening;
    } cases[] = {
        {"date", {"open calendar at 1116,528"}},
        {"time", {"SelChange time", "DropDown time 289,46"}},
        {"fruit", {"SelChange fruit", "open list at 1051,564"}},
        {"city", {"SelChange city", "open list at 1051,582"}},
        {"price", {"SelChange price", "open calculator at 1121,618"}},
        {"euro", {"SelChange euro", "open list at 1051,636"}},
        {"file", {"SelChange file", "DropDown file 289,172"}},
    };
    for (const auto& expected : cases) {
        host.Journal.Clear();
        PressButton(expected.Key);
        host.Clock.Advance(100);
        EXPECT_EQ(Taken(), expected.Opening) << expected.Key;
        EXPECT_LE(host.Pads->ShownWindows(), 1);
        PressButton(expected.Key); // the second press only closes
        host.Clock.Advance(100);
        EXPECT_EQ(host.Pads->ShownWindows(), 0) << expected.Key;
    }
}

TEST_F(Pad, ResultsComeWithTheirEventsInOrder) {
    const auto keys = [this](std::initializer_list<std::int32_t> codes) {
        for (const std::int32_t code : codes)
            host.Press(code);
    };
    const struct {
        const char* Name;
        const char* Key;
        std::function<void()> Act;
        Entries Happened;
        const char* Text;
    } cases[] = {
        {"the list's rows are taken as they are passed",
         "fruit",
         [&] {
             keys({quillgrid::KeyUp, quillgrid::KeyUp, KeyEnter});
         },
         {"close list", "Change fruit"},
         "Apple"},
        {"Escape returns to the row of the opening, and says Change all the same",
         "fruit",
         [&] {
             keys({quillgrid::KeyDown, KeyEscape});
         },
         {"close list", "Change fruit"},
         "Apple"},
        {"typing looks for entries",
         "fruit",
         [&] { host.Type("be "); },
         {"close list", "Change fruit"},
         "Berry"},
        {"a click takes the row under it",
         "fruit",
         [&] { host.ClickRow(2); },
         {"close list", "Change fruit"},
         "Banana"},
        {"free text stays when the list opens and Escape leaves it",
         "city",
         [&] {
             keys({quillgrid::KeyDown, KeyEscape});
         },
         {"close list", "Change city"},
         "Bonn"},
        {"Escape from a list of which nothing was chosen chooses nothing",
         "none",
         [&] {
             keys({quillgrid::KeyDown, KeyEscape});
         },
         {"close list", "Change none"},
         ""},
        {"F4 closes without a word", "city", [&] { keys({KeyF4}); }, {"close list"}, "Bonn"},
        {"Enter takes the first row of a free text at once",
         "city",
         [&] { keys({KeyEnter}); },
         {"close list", "Change city"},
         "Berlin"},
        {"a day further by the keyboard",
         "date",
         [&] {
             keys({KeyRight, KeyEnter});
         },
         {"close calendar", "Change date"},
         "03.04.2026"},
        {"the same day is no change", "date", [&] { keys({KeyEscape}); }, {"close calendar"}, "03.04.2026"},
        {"a day by the mouse",
         "date",
         [&] { host.ClickDay(30); },
         {"close calendar", "Change date"},
         "30.04.2026"},
        {"net of gross",
         "price",
         [&] {
             host.Type("116");
             keys({KeyF1 + 6, KeyEnter});
         },
         {"close calculator", "Change price"},
         "100,00 \u20ac"},
        {"the keys of the calculator",
         "price",
         [&] {
             for (const int key : {5, 11, 19, 12, 15, 15})
                 host.ClickKey(key);
         },
         {"close calculator", "Change price"},
         "3,00 \u20ac"},
        {"another currency, by typing its country",
         "euro",
         [&] {
             host.Type("deut");
             keys({KeyEnter});
         },
         {"close list", "Change euro"},
         "100,00 \u20ac"},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.Name);
        Open(expected.Key);
        EXPECT_EQ(host.Pads->ShownWindows(), 1);
        expected.Act();
        EXPECT_EQ(Taken(), expected.Happened);
        EXPECT_EQ(At(expected.Key).Text(), expected.Text);
        EXPECT_EQ(host.Box.Text(), expected.Text);
        EXPECT_EQ(host.Pads->ShownWindows(), 0);
        EXPECT_EQ(host.Focus, headless::FocusPlace::EditBox);
    }
    EXPECT_TRUE(host.Grid->Changed()); // a date marks the whole form
}

TEST_F(Pad, AmountsAreConvertedFromWhatTheCellHeldAtOpening) {
    Open("euro");
    EXPECT_EQ(At("euro").Listitems().Count(), 22);
    for (int i = 0; i < 21; ++i)
        host.Press(quillgrid::KeyDown);
    for (int i = 0; i < 16; ++i)
        host.Press(quillgrid::KeyUp);
    EXPECT_EQ(At("euro").Unit(), "DEM");
    EXPECT_EQ(At("euro").Text(), "195,58 DM");
    EXPECT_EQ(At("euro").ListImage(), Variant("money"));
    host.Press(KeyEscape);
    EXPECT_EQ(At("euro").Unit(), "EUR");
    EXPECT_EQ(At("euro").Text(), "100,00 \u20ac");
    EXPECT_FALSE(At("euro").Changed());
    At("euro").SetUnit("");
    Open("euro");
    EXPECT_EQ(host.Pads->ShownWindows(), 0);
}

TEST_F(Pad, WhatTheUserMayNotChangeIsOnlyShown) {
    host.Grid->SetUserLevel(1);
    for (const char* key : {"date", "fruit", "price", "city"})
        At(key).SetUserLevelEnabled(2);
    const auto texts = [&] {
        return Entries{At("date").Text(), At("fruit").Text(), At("city").Text(), At("price").Text()};
    };
    const Entries before = texts();
    Open("date");
    EXPECT_FALSE(host.Pads->DatePad().Enabled());
    host.Press(KeyRight);
    host.Press(KeyEscape); // the calendar that takes no keys closes all the same
    EXPECT_THAT(Taken(), ElementsAre("close calendar"));
    for (const char* key : {"fruit", "city"}) {
        Open(key);
        host.Press(quillgrid::KeyDown);
        host.ClickRow(1);
        EXPECT_EQ(host.Pads->ShownWindows(), 0);
    }
    Open("price");
    EXPECT_EQ(host.Pads->ShownWindows(), 0);
    EXPECT_EQ(texts(), before);
    EXPECT_FALSE(host.Grid->Changed());
}

TEST_F(Pad, SpaceOpensACellWhoseDataIsHiddenWhateverWasSelectedBefore) {
    At("city").SetDataVisible(false);
    At("date").SetFocus();
    host.Box.Select(1, 1);
    At("city").SetFocus();
    EXPECT_FALSE(host.Box.Visible);
    host.Journal.Clear();
    host.Type(" ");
    EXPECT_THAT(Taken(), ElementsAre("open list at 1051,582"));
    host.Press(KeyEnter);
    EXPECT_EQ(At("city").Text(), "Bonn");
}

TEST_F(Pad, BoundsOfACellDoNotMoveTheDateOfTheNext) {
    At("date").SetMin(Variant(Date(2026, 4, 1)));
    At("date").SetMax(Variant(Date(2026, 4, 10)));
    At("date").SetAllowSunday(false);
    Open("date");
    host.Press(KeyPageDown);
    EXPECT_EQ(At("date").Text(), "10.04.2026");
    for (int i = 0; i < 5; ++i)
        host.Press(KeyLeft);
    EXPECT_EQ(At("date").Text(), "04.04.2026"); // over a Sunday
    auto& other = Add("other", Variant(), qgctDate);
    other.SetButton(qgbtClock);
    host.Grid->Refresh();
    Open("other");
    EXPECT_EQ(host.Pads->DatePad().CurrentDate(), Date(2026, 3, 25)); // today
    EXPECT_TRUE(other.Value().IsNull());
    host.Grid->IsWorkDay(Date(2020, 1, 1)); // a question of the program does not turn the pages
    EXPECT_EQ(host.Pads->DatePad().CurrentDate(), Date(2026, 3, 25));
    EXPECT_TRUE(other.Value().IsNull());
}

TEST_F(Pad, CalendarDateIsTheDateThatTheCalendarShows) {
    At("date").SetAllowSunday(false);
    At("date").SetFocus();
    host.Grid->IsWorkDay(Date(2020, 1, 1));
    Open("date");
    EXPECT_EQ(host.Grid->CalendarDate(), Date(2026, 4, 2));
    host.Press(KeyRight);
    EXPECT_EQ(host.Grid->CalendarDate(), Date(2026, 4, 3));
    auto& other = Add("other", Variant(Date(2026, 4, 4)), qgctDate);
    other.SetButton(qgbtClock);
    host.Grid->Refresh();
    Open("other");
    EXPECT_EQ(host.Grid->CalendarDate(), Date(2026, 4, 4));
    host.Press(KeyRight);
    EXPECT_EQ(host.Grid->CalendarDate(), Date(2026, 4, 5)) << "a Sunday, which this cell takes";
    EXPECT_EQ(other.Text(), "05.04.2026");
    host.Press(KeyF4);
    other.SetEnabled(false); // the calendar is not locked, only what it says is not taken
    Open("other");
    host.Press(KeyRight);
    EXPECT_EQ(host.Grid->CalendarDate(), Date(2026, 4, 6));
    EXPECT_EQ(other.Text(), "05.04.2026");
}

TEST_F(Pad, BoundsOfTheCalendarAreDatesHoweverTheyAreWritten) {
    const struct {
        Variant Min, Max;
        DateTime Least, Most;
    } cases[] = {
        {Variant("1.4.2026"), Variant("30.04.2026"), Date(2026, 4, 1), Date(2026, 4, 30)},
        {Variant("soon"), Variant(""), Date(100, 1, 1), Date(9999, 1, 1)},
        {Variant(46000), Variant("46500"), Date(100, 1, 1), Date(9999, 1, 1)},
        {Variant::Null(), Variant(Date(2026, 4, 3)), Date(100, 1, 1), Date(2026, 4, 3)},
    };
    for (const auto& expected : cases) {
        SCOPED_TRACE(&expected - cases);
        At("date").SetMin(expected.Min);
        At("date").SetMax(expected.Max);
        Open("date");
        EXPECT_EQ(host.Pads->DatePad().MinDate(), expected.Least);
        EXPECT_EQ(host.Pads->DatePad().MaxDate(), expected.Most);
        host.Press(KeyF4);
    }
}

TEST_F(Pad, ACellThatBecomesOneWithAnotherPadOpensItAlone) {
    const auto press = [this](ButtonStyleConstants button) {
        At("date").SetButton(button);
        host.Grid->DoubleClick(OnButton("date"));
    };
    Open("date");
    press(qgbtCalc);
    EXPECT_EQ(host.Pads->ShownWindows(), 1);
    EXPECT_EQ(Taken(), (Entries{"close calendar", "open calculator at 1121,528"}));
    press(qgbtClock);
    EXPECT_EQ(host.Pads->ShownWindows(), 1);
    At("date").SetValidationRule(qgvrNone);
    host.Journal.Clear();
    press(qgbtClock); // now the host's
    EXPECT_EQ(host.Pads->ShownWindows(), 0);
    host.Clock.Advance(100);
    EXPECT_EQ(Taken(), (Entries{"close calendar", "DropDown date 289,28"}));
}

TEST_F(Pad, NothingStaysOpenLongerThanItsCellIsLookedAt) {
    const struct {
        const char* Name;
        std::function<void()> Act;
    } cases[] = {
        {"a resize, even to the same size", [&] { host.Grid->Resize(); }},
        {"the focus goes", [&] { host.LeaveControl(); }},
        {"another row by code", [&] { At("flag").SetFocus(); }},
        {"a press on a label",
         [&] {
             host.Grid->MouseDown({20, 20});
         }},
        {"a press beside the rows",
         [&] {
             host.Grid->MouseDown({150, 290});
         }},
        {"the cell is removed", [&] { host.Grid->Cells().Remove(host.Grid->Cell()->Key()); }},
        {"all cells go", [&] { host.Grid->Clear(); }},
        {"the control ends", [&] { host.Grid.reset(); }},
    };
    const char* const keys[] = {"fruit", "price", "fruit", "price", "date", "fruit", "date", "none"};
    std::size_t next = 0;
    for (const auto& expected : cases) {
        SCOPED_TRACE(expected.Name);
        host.EnterControl();
        if (!host.Grid->Cells().Find(keys[next])) {
            Fill(Add("none", Variant(), qgctCombo), {"a"});
            host.Grid->Refresh();
        }
        Open(keys[next++]);
        EXPECT_EQ(host.Pads->ShownWindows(), 1);
        expected.Act();
        EXPECT_EQ(host.Pads->ShownWindows(), 0);
    }
}

TEST_F(Pad, TheHostDropsDownAfterAMomentAndKeysWaitForIt) {
    At("time").SetFocus();
    host.Journal.Clear();
    host.Grid->MouseDown(OnButton("time"));
    host.Clock.Advance(99);
    EXPECT_THAT(Taken(), IsEmpty());
    host.Clock.Advance(1);
    EXPECT_THAT(Taken(), ElementsAre("DropDown time 289,46"));
    host.Type("1"); // dropped, but the last one that is
    EXPECT_EQ(host.Box.Text(), "");
    host.Type("1");
    EXPECT_EQ(host.Box.Text(), "1");
    host.Press(KeyF4);
    At("fruit").SetFocus(); // the cell that waits is left
    host.Clock.Advance(100);
    host.Grid->MouseDown(OnButton("file"));
    host.Grid->Cells().Remove("file");
    host.Journal.Clear();
    host.Clock.Advance(100);
    EXPECT_THAT(Taken(), IsEmpty());
    EXPECT_EQ(host.Clock.Waiting(), 0U);
    host.Grid->MouseDown(OnButton("time"));
    ASSERT_EQ(host.Clock.Waiting(), 1U);
    At("time").SetVisible(false);
    host.Grid->Refresh();
    EXPECT_EQ(host.Clock.Waiting(), 0U);
}

TEST_F(Pad, OnlyAnOpenPadKeepsKeyEventsBack) {
    Open("fruit");
    host.Press(quillgrid::KeyUp);
    host.Type("b");
    EXPECT_THAT(host.Journal.Take(), ElementsAre(testing::StartsWith("repaint"), "KeyPress fruit 98",
                                                 testing::StartsWith("repaint")));
    host.Press(KeyF4);
    Open("price"); // the calculator does not count
    host.Type("1");
    EXPECT_THAT(host.Journal.Take(), ElementsAre("KeyDown price 49", "KeyPress price 49", "KeyUp price 49"));
    EXPECT_EQ(host.Box.Text(), "");
}

TEST_F(Pad, WhatIsTypedIsTakenOverFirstOrKeepsThePadAway) {
    At("date").SetFocus();
    host.Type("5.4.2026");
    host.Journal.Clear();
    host.Press(KeyF4);
    EXPECT_EQ(host.Pads->DatePad().CurrentDate(), Date(2026, 4, 5));
    EXPECT_EQ(host.Box.Text(), "05.04.2026");
    host.Press(KeyF4);
    host.Grid->ValidateCellError.Listen([](Cell&, ValidationErrConstants&, bool& cancel) { cancel = true; });
    host.Type("31.2.2026");
    host.Press(KeyF4);
    EXPECT_EQ(host.Pads->ShownWindows(), 0);
    Open("flag"); // F4 turns it over, Space and the press on its image too
    EXPECT_EQ(At("flag").Value(), Variant(std::int16_t{-1}));
    host.Type(" ");
    EXPECT_EQ(At("flag").Value(), Variant(std::int16_t{0}));
}

} // namespace
} // namespace quillgrid
