// Everything that the mouse can do in a form and its pads, done by keys.
#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"

#include <gtest/gtest.h>

namespace quillgrid {
namespace {

using headless::HeadlessHost;

constexpr std::int32_t F5 = 116;

/// A form with a cell of each kind under a heading, more rows than it has room for, and both boxes.
class KeyTable : public ::testing::Test {
public:
    HeadlessHost Host{{300, 200}};
    Quillgrid& Grid = *Host.Grid;

    KeyTable() {
        Grid.SetShowCaption(true);
        Grid.SetShowCloseBox(true);
        Grid.SetShowMenuBox(true);
        Grid.SetShowGroupBox(true);
        Grid.SetGrouped(true);
        Grid.AddGroup({.Key = "all", .Caption = "All"});
        Add("text", "abc", qgctNone);
        Add("spin", -3, qgctSpin).SetMin(Variant(-10));
        Add("flag", true, qgctboolean);
        Add("date", Variant(DateTime{46114, 0}), qgctDate).SetButton(qgbtClock);
        Cell& list = Add("list", "b", qgctlist);
        for (const char* entry : {"a", "b", "c"})
            list.Listitems().Add({.Text = entry});
        list.SetListIndex(2);
        Add("price", Variant(*Currency::FromDecimal("12.5")), qgctCurrency).SetButton(qgbtCalc);
        Host.Images.Add("phone");
        Add("phone", "0815", qgctPhone).SetListImage(Variant("phone"));
        for (int more = 0; more < 20; ++more)
            Add(("more" + std::to_string(more)).c_str(), more, qgctInteger);
        Grid.Update();
        Host.EnterControl();
        Grid.CloseBoxClick.Listen([this] { Host.Journal.Note("CloseBoxClick"); });
        Grid.MenuClick.Listen([this](float, float) { Host.Journal.Note("MenuClick"); });
        Host.RecordEvents();
    }
    Cell& Add(const char* key, const Variant& value, CellTemplateConstants kind) {
        return *Grid.Add(
            {.Key = key, .Caption = Variant(key), .Value = value, .CellTemplate = kind, .Group = "all"});
    }
    void GoTo(const std::string& key) {
        if (key != "heading") return Grid.Cells().Item(key)->SetFocus();
        Host.Press(KeyHome, ShiftControl);
    }
    /// "events; current cell = its text @ first row in view, rows, pad".
    std::string Seen() {
        std::string seen;
        for (const std::string& entry : Host.Journal.Take()) {
            if (!entry.starts_with("repaint") && !entry.starts_with("Key") && !entry.starts_with("open"))
                seen += entry + "; ";
        }
        const Cell& cell = *Grid.Cell();
        seen += (cell.Key().empty() ? "heading" : cell.Key()) + "=" + cell.Text() + " @" +
                std::to_string(Grid.FirstVisibleRow());
        return Host.Pads->ShownWindows() > 0 ? seen + " pad" : seen;
    }
};

struct Row {
    const char* At;
    std::int32_t Key;
    std::int32_t Shift;
    const char* Seen;
};

TEST_F(KeyTable, EveryPlaceOfAFormHasItsKeys) {
    const Row rows[] = {
        {"text", KeyF10, 0, "MenuClick; text=abc @1"},
        {"text", KeyF4, ShiftControl, "CloseBoxClick; text=abc @1"},
        {"list", KeyF4, ShiftControl, "CloseBoxClick; list=b @1"},
        {"list", KeyF10, ShiftShift, "list=b @1"},
        {"phone", KeyEnter, ShiftAlt, "ImageClick phone; phone=0815 @1"},
        {"flag", KeyF4, 0, "Change flag; flag=nein @1"},
        {"spin", KeyUp, ShiftShift, "Change spin; spin=-2 @1"},
        {"spin", KeyDown, ShiftShift, "Change spin; spin=-3 @1"},
        {"text", KeyDown, ShiftShift, "SelChange spin; spin=-3 @1"},
        {"text", KeyDown, ShiftControl, "text=abc @2"},
        {"text", KeyUp, ShiftControl, "text=abc @1"},
        {"text", KeyDown, ShiftControl | ShiftShift, "SelChange spin; spin=-3 @1"},
        {"date", KeyF4, 0, "date=02.04.2026 @1 pad"},
        {"list", KeyDown, ShiftAlt, "list=b @1 pad"},
        {"price", KeyF4, 0, "price=12,50 € @1 pad"},
        {"flag", KeyF4, 0, "Change flag; flag=ja @1"},
        {"heading", KeyLeft, 0, "heading= @1"},
        {"heading", KeyRight, 0, "heading= @1"},
    };
    const std::int32_t all = Grid.RowCount();
    for (const Row& row : rows) {
        GoTo(row.At);
        Host.Journal.Clear();
        Host.Press(row.Key, row.Shift);
        EXPECT_EQ(Seen(), row.Seen) << row.At << " " << row.Key << "+" << row.Shift;
        EXPECT_EQ(Grid.RowCount(), row.Key == KeyLeft ? 1 : all);
        Grid.HidePads();
    }
}

TEST_F(KeyTable, WhatIsNotThereTakesNoKey) {
    Grid.SetShowCloseBox(false);
    Grid.SetShowMenuBox(false);
    Grid.Refresh();
    GoTo("text");
    for (const std::int32_t key : {KeyF10, KeyF4}) {
        EXPECT_FALSE(Host.Press(key, key == KeyF4 ? ShiftControl : ShiftNone)) << key;
    }
    GoTo("list");
    Host.Journal.Clear();
    Host.Press(KeyF4, ShiftControl);
    EXPECT_EQ(Seen(), "list=b @1 pad") << "without a box it is the button's key as ever";
    Grid.HidePads();
    Grid.SetShowMenuBox(true);
    Grid.Clear();
    Grid.Refresh();
    Host.Journal.Clear();
    EXPECT_TRUE(Host.Press(KeyF10)) << "a form without rows has its menu too";
    EXPECT_EQ(Host.Journal.Take().back(), "MenuClick");
    for (const std::int32_t key :
         std::vector<std::int32_t>{KeyDown, KeyUp, KeyEnter, KeyF4, INT32_MAX, INT32_MIN, 0})
        for (const std::int32_t shift : {0, 1, 2, 4, 7, -1, INT32_MAX})
            Host.Press(key, shift);
}

TEST_F(KeyTable, HandlersHearOfThemFirstAndMayEndTheControl) {
    const auto deaf = Grid.KeyWentDown.Connect(
        [](Cell&, std::int16_t& key, std::int16_t&) { key = key == KeyF10 ? 0 : key; });
    GoTo("text");
    Host.Journal.Clear();
    EXPECT_TRUE(Host.Press(KeyF10));
    EXPECT_EQ(Seen(), "text=abc @1");
    Grid.CloseBoxClick.Listen([this] { Host.Grid.reset(); });
    Host.Press(KeyF4, ShiftControl);
    EXPECT_EQ(Host.Grid, nullptr);
}

TEST_F(KeyTable, PadsDoByKeysWhatTheyDoByClicks) {
    GoTo("date");
    Host.Press(KeyF4);
    Host.Clock.Moment = {46200, 0};
    Host.Press(KeyHome, ShiftControl);
    EXPECT_EQ(Host.Pads->DatePad().CurrentDate().Day, 46200) << "the status line's today";
    Host.Press(KeyHome);
    EXPECT_EQ(Host.Pads->DatePad().CurrentYear(), 2025) << "the button's year";
    Host.Press(KeyF10);
    Host.Press(KeyEscape);
    GoTo("price");
    Host.Press(KeyF4);
    Host.Press(KeyF9);
    EXPECT_EQ(Host.Pads->CalcPad().DisplayText(), "-12.5");
    Host.Press(F5);
    EXPECT_EQ(Host.Pads->CalcPad().DisplayText(), "-24.4475") << "a formula key";
    Host.Press(KeyF9);
    EXPECT_EQ(Host.Pads->CalcPad().DisplayText(), "24.4475");
}

} // namespace
} // namespace quillgrid
