#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/pads/ListPadCore.h"
#include "quillgrid/pads/PadKeyCodes.h"
#include "tests/cells/FakeOwner.h"
#include "tests/pads/FakePadHost.h"

#include <gtest/gtest.h>

#include <memory>

namespace quillgrid::test {

namespace {

class ListPadTest : public testing::Test {
protected:
    ListPadTest() {
        pad->ValueChange.Listen([this] { said += "v" + std::to_string(pad->ListIndex()); });
        pad->CloseUp.Listen([this] { said += 'C'; });
    }

    std::shared_ptr<Cell> List(int count, CellTemplateConstants kind = qgctlist) {
        const auto cell = cells.Add({.Caption = "c", .CellTemplate = kind});
        cell->Listitems().Clear();
        for (int i = 1; i <= count; ++i)
            cell->Listitems().Add({.Text = "row " + std::to_string(i), .ItemData = i * 10});
        CellAccess::SetArea(*cell, CellArea::Value, {0, 0, 120, 20});
        return cell;
    }
    std::shared_ptr<Cell> Words(std::initializer_list<const char*> words) {
        const auto cell = List(0);
        for (const char* word : words)
            cell->Listitems().Add({.Text = word});
        return cell;
    }
    void Popup(std::shared_ptr<Cell> cell) {
        pad->Attach(std::move(cell));
        pad->SelectCellEntry();
        said.clear();
    }
    /// Gives the current row, the first row in view and the events.
    std::string State() {
        return std::to_string(pad->ListIndex()) + "@" + std::to_string(pad->ScrollPosition() + 1) +
               (said.empty() ? "" : " " + std::exchange(said, ""));
    }
    std::string Key(std::int32_t code) {
        pad->KeyDown(code);
        EXPECT_EQ(code, 0);
        return State();
    }
    std::string Type(std::int32_t character) {
        pad->KeyPress(character);
        EXPECT_EQ(character, 0);
        return State();
    }

    FakeOwner owner;
    Cells cells{&owner};
    FixedMetrics metrics; // 9 points are 13 pixels high, so that a row has 18
    std::unique_ptr<ListPadCore> pad =
        std::make_unique<ListPadCore>(ListPadPorts{metrics, owner.Watch, &owner.Desk});
    std::string said;
};

} // namespace

TEST_F(ListPadTest, LaysOutByTheCellsWidth) {
    Popup(List(10));
    EXPECT_EQ(pad->Layout().DumpText(),
              "pad 0,0 - 120,112\n"
              "frame 2,2 - 118,110\n"
              "rows 0,0 - 102,108\n"
              "scroll bar 102,0 - 116,108\n"
              "row height 18, shown 6 of 10, scrolls to 4\n"
              "image column 0, image top 9, text column 50, text top 2, surface 288\n");
    pad->SetBorderStyle(qgpbsClassic);
    EXPECT_EQ(pad->Layout().Pad, (Size{120, 110}));
    pad->SetBorderStyle(qgpbsNone);
    EXPECT_EQ(pad->Layout().Frame, (Rect{0, 0, 120, 108}));
    pad->SetAutoSize(true); // the widest text is row 10: 42 pixels, less than 50
    EXPECT_EQ(pad->Layout().Pad.Width, 120);
    pad->AttachedCell()->Listitems().Add({.Text = std::string(30, 'w')});
    pad->Refresh();
    EXPECT_EQ(pad->Layout().Pad.Width, 180 + 12 + 14);
    pad->SetFont({"", 20, false, false});
    EXPECT_EQ(pad->Layout().RowHeight, 35);
}

TEST_F(ListPadTest, ScrollBarOnlyWhereRowsAreLeftOver) {
    Popup(List(6));
    EXPECT_FALSE(pad->Layout().ScrollBarShown());
    pad->SetVisibleRows(1);
    EXPECT_FALSE(pad->Layout().ScrollBarShown());
    pad->SelectCellEntry();
    said.clear();
    EXPECT_EQ(Key(padkey::Down), "2@1 v2"); // and nothing scrolls
    pad->SetVisibleRows(5);
    EXPECT_TRUE(pad->Layout().ScrollBarShown());
    EXPECT_EQ(pad->Layout().ScrollMaximum, 1);
}

TEST_F(ListPadTest, OpensOnTheCellsEntry) {
    const auto cell = List(20);
    cell->SetListIndex(15);
    pad->Attach(cell);
    EXPECT_EQ(pad->HighlightedRow(), 0);
    pad->SelectCellEntry();
    EXPECT_EQ(State(), "15@10 v15");
    EXPECT_EQ(pad->HighlightedRow(), 15);
    EXPECT_EQ(pad->Text(), "row 15");
    EXPECT_EQ(pad->ItemData(), 150);
    EXPECT_EQ(pad->SelectedItem(), cell->Listitems().At(15));
    EXPECT_EQ(Key(padkey::Home), "1@1 v1");
    EXPECT_EQ(Type(padkey::Escape), "15@2 v15C"); // one row is let in, as everywhere
    pad->Refresh();
    EXPECT_EQ(State(), "15@1");
    EXPECT_EQ(pad->HighlightedRow(), 0);

    Popup(List(3)); // no entry chosen
    EXPECT_EQ(State(), "1@1");
    EXPECT_EQ(Key(padkey::End), "3@1 v3");
    EXPECT_EQ(Type(padkey::Escape), "1@1 v1C");
}

TEST_F(ListPadTest, Keyboard) {
    Popup(List(8));
    EXPECT_EQ(Key(padkey::Up), "1@1 v1");
    EXPECT_EQ(Key(padkey::Right), "2@1 v2");
    EXPECT_EQ(Key(padkey::Left), "1@1 v1");
    for (int row = 2; row <= 6; ++row)
        Key(padkey::Down);
    EXPECT_EQ(State(), "6@1");
    EXPECT_EQ(Key(padkey::Down), "7@2 v7");
    EXPECT_EQ(Key(padkey::PageDown), "8@3 v8");
    EXPECT_EQ(Key(padkey::PageDown), "8@3 v8");
    EXPECT_EQ(Key(padkey::Home), "1@1 v1");
    EXPECT_EQ(Key(padkey::End), "8@3 v8");
    pad->ScrollTo(0);
    EXPECT_EQ(Key(padkey::PageUp), "7@2 v7"); // comes into view
    EXPECT_EQ(Key(65), "7@2");
    EXPECT_EQ(Type(padkey::Space), "7@2 v7C");
    EXPECT_EQ(Type(padkey::Enter), "7@2 C");
    pad->ScrollTo(99);
    EXPECT_EQ(State(), "7@3");
    pad->ScrollTo(-5);
    EXPECT_EQ(State(), "7@1");
}

TEST_F(ListPadTest, Mouse) {
    Popup(List(8));
    pad->MouseMove(18 * 3, false);
    EXPECT_EQ(State(), "4@1 v4");
    pad->MouseMove(18 * 3 + 17, false);
    EXPECT_EQ(State(), "4@1");
    pad->MouseMove(0, true); // an arrow key is held
    EXPECT_EQ(State(), "4@1");
    pad->MouseDown(0);
    EXPECT_EQ(State(), "1@1 v1");
    pad->MouseUp();
    EXPECT_EQ(State(), "1@1 C");
    pad->ScrollTo(2);
    pad->MouseMove(18, false);
    EXPECT_EQ(State(), "4@3 v4");
    pad->MouseMove(INT32_MIN, false);
    EXPECT_EQ(State(), "1@2 v1");
    pad->MouseMove(INT32_MAX, false);
    EXPECT_EQ(State(), "8@3 v8");
}

TEST_F(ListPadTest, EmptyListAndNoCell) {
    for (int round = 0; round < 2; ++round) {
        for (const auto code : {padkey::Up, padkey::PageDown, padkey::Home, padkey::End})
            EXPECT_EQ(Key(code), "0@1");
        EXPECT_EQ(Type('x'), "0@1");
        EXPECT_EQ(Type(padkey::Escape), "0@1 C");
        EXPECT_EQ(Type(padkey::Space), "0@1 C");
        EXPECT_EQ(Type(padkey::Enter), "0@1 C");
        pad->MouseMove(40, false);
        pad->MouseDown(40);
        pad->FocusGained();
        EXPECT_EQ(State(), "0@1");
        EXPECT_EQ(pad->ItemData(), 0);
        EXPECT_EQ(pad->Text(), "");
        EXPECT_FALSE(pad->SelectedItem());
        EXPECT_EQ(pad->RowCount(), round == 0 ? 6 : 0); // samples first
        EXPECT_EQ(pad->Layout().Pad.Height, round == 0 ? 6 * 18 + 4 : 4);
        Popup(List(0));
    }
    pad->Attach(nullptr); // keeps the cell that it has
    EXPECT_TRUE(pad->AttachedCell());
    Popup(List(5));
    Key(padkey::End);
    Popup(List(0)); // whatever was current in another list
    EXPECT_EQ(State(), "0@1");
}

TEST_F(ListPadTest, SamplesAreShownUntilItFirstOpens) {
    EXPECT_EQ(pad->FindItem(Words({"Alpha", "Beta"}), 'b'), 2);
    pad->Refresh();
    EXPECT_EQ(pad->RowCount(), 6);
    EXPECT_EQ(Key(padkey::Down), "0@1");
    Popup(List(5));
    pad->FindItem(List(3), 'r'); // whose entries it shows from now on
    EXPECT_EQ(Key(padkey::End), "3@1 v3");
}

TEST_F(ListPadTest, LooksLikeTheTemplateThatTheCellOpenedWith) {
    const auto cell = List(3, qgctColor);
    Popup(cell);
    cell->Define({.NewCellTemplate = qgctFont});
    EXPECT_TRUE(pad->HasSwatches());
    EXPECT_EQ(pad->FontOf(Listitem()).Name, pad->Settings().Font.Name);
    Popup(cell);
    EXPECT_FALSE(pad->HasSwatches());
}

TEST_F(ListPadTest, TypingUsesTheCellsSearch) {
    Popup(Words({"Amber", "Azure", "Beige", "black", "Blue"}));
    EXPECT_EQ(Type('b'), "3@1 v3");
    EXPECT_EQ(Type('L'), "4@1 v4");
    owner.Watch.Ticks += 500;
    EXPECT_EQ(Type('b'), "5@1 v5");
    EXPECT_EQ(pad->AttachedCell()->ListIndex(), 5);
    const auto combo = List(3, qgctCombo);
    combo->SetStyle(qgcsText);
    Popup(combo);
    Key(padkey::End);
    EXPECT_EQ(Type('r'), "1@1 v1"); // no list to search: row 0 is the first
    EXPECT_EQ(Type(-7), "1@1 v1");
}

TEST_F(ListPadTest, FindItemCountsTheCurrentRow) {
    const auto cell = Words({"Alpha", "beta", "Bravo", "Bristol"});
    EXPECT_EQ(pad->FindItem(cell, 'b'), 2);
    EXPECT_EQ(pad->FindItem(cell, 'R'), 3);
    cell->SetListIndex(4);
    owner.Watch.Ticks += 500;
    EXPECT_EQ(pad->FindItem(cell, 'b'), 2);
    EXPECT_EQ(pad->FindItem(cell, 'r'), 3);
    EXPECT_EQ(pad->FindItem(cell, 'i'), 4); // itself
    EXPECT_EQ(pad->FindItem(cell, 'x'), 4); // none: forgets what was typed
    EXPECT_EQ(pad->FindItem(cell, 'a'), 1);
    EXPECT_EQ(pad->FindItem(nullptr, 'a'), 0);
    EXPECT_EQ(pad->FindItem(List(0), 'a'), List(0)->ListIndex());
}

TEST_F(ListPadTest, ImagesSwatchesAndFonts) {
    CountedImages images(3);
    images.ImagePixels = {20, 30};
    pad->SetImages(&images);
    const auto cell = List(3);
    Popup(cell);
    EXPECT_EQ(pad->Layout().ImageColumnWidth, 0);
    EXPECT_EQ(pad->Layout().RowHeight, 32); // although no entry has an image
    cell->Listitems().At(3)->SetListImage("");
    Popup(cell);
    EXPECT_EQ(pad->Layout().ImageColumnWidth, 0);
    cell->Listitems().At(2)->SetListImage("image 1");
    Popup(cell);
    EXPECT_EQ(pad->Layout().ImageColumnWidth, 20);
    const ListPadRow row = pad->Layout().RowAt(3, 1, 2);
    EXPECT_EQ(row.Area, (Rect{0, 32, 116, 64}));
    EXPECT_EQ(row.Image, (Point{42, 33}));
    EXPECT_EQ(row.Text, (Rect{64, 32 + 9, 156, 64}));

    pad->SetImages(nullptr);
    Popup(List(3, qgctColor));
    EXPECT_TRUE(pad->HasSwatches());
    EXPECT_EQ(pad->Layout().RowAt(1, 0).Swatch, (Rect{4, 4, 14, 14}));
    EXPECT_EQ(pad->Layout().RowAt(1, 0).Text.Left, 20);
    Popup(List(2, qgctFont));
    EXPECT_EQ(pad->FontOf(*pad->RowItem(2)), (Font{"row 2", 9, false, false}));
    EXPECT_EQ(pad->Layout().RowHeight, 18);
}

TEST_F(ListPadTest, FocusRectangle) {
    pad->SetShowFocusRect(true);
    Popup(List(2));
    EXPECT_TRUE(pad->FocusRectShown());
    pad->FocusLost();
    EXPECT_FALSE(pad->FocusRectShown());
    pad->FocusGained();
    EXPECT_EQ(State(), "1@1 v1");
    EXPECT_TRUE(pad->FocusRectShown());
    pad->Refresh();
    EXPECT_FALSE(pad->FocusRectShown());
}

TEST_F(ListPadTest, PropertiesTravelThroughTheBag) {
    const Locale locale = BuiltInLocale("en-US");
    const Font ambient{"Serif", 11, true, false};
    MapBag bag;
    EXPECT_EQ(ReadListPadSettings(bag, ambient, locale), ListPadSettings{.Font = ambient});
    const ListPadSettings settings{qgpbsSunken, {"Mono", 8, false, true}, 12, 0x123456, true, true};
    WriteListPadSettings(settings, ambient, bag);
    EXPECT_EQ(ReadListPadSettings(bag, ambient, locale), settings);
    bag.Kept = {{"VisibleRows", 1000}, {"Font", "Mono"}};
    EXPECT_EQ(ReadListPadSettings(bag, ambient, locale).VisibleRows, 99);

    std::string changed;
    pad->PropertyChanged.Listen([&](std::string_view key) { changed.append(key).append(";"); });
    pad->SetVisibleRows(6); // as it is
    pad->SetVisibleRows(0);
    EXPECT_EQ(pad->Settings().VisibleRows, 1);
    pad->SetVisibleRows(150);
    EXPECT_EQ(pad->Settings().VisibleRows, 99);
    pad->SetBackColor(7);
    pad->SetShowFocusRect(true); // not reported
    EXPECT_EQ(changed, "VisibleRows;VisibleRows;BackColor;");
}

TEST_F(ListPadTest, HandlersMayEmptyTheListAndEndThePad) {
    const auto cell = List(9);
    Popup(cell);
    {
        const auto emptying = pad->ValueChange.Connect([&] { cell->Listitems().Clear(); });
        EXPECT_EQ(Key(padkey::End), "9@4 v9");
    }
    EXPECT_FALSE(pad->SelectedItem());
    EXPECT_EQ(pad->ItemData(), 0);
    EXPECT_EQ(Key(padkey::Down), "9@4");
    for (const std::int32_t code : {padkey::Escape, padkey::Space, std::int32_t{'r'}}) {
        pad = std::make_unique<ListPadCore>(ListPadPorts{metrics, owner.Watch, &owner.Desk});
        pad->Attach(List(9));
        pad->ValueChange.Listen([this] { pad.reset(); });
        std::int32_t key = code;
        pad->KeyPress(key);
        EXPECT_FALSE(pad);
    }
}

TEST_F(ListPadTest, NoWorkForRowsOutOfView) {
    const auto cell = List(10'000);
    metrics.WidthsAsked = 0;
    Popup(cell);
    Key(padkey::End);
    Key(padkey::PageUp);
    pad->ScrollTo(5000);
    EXPECT_EQ(metrics.WidthsAsked, 0);
    EXPECT_EQ(pad->Layout().SurfaceHeight, 10'006 * 18);
    const auto row = pad->Layout().RowAt(5001, pad->ScrollPosition());
    EXPECT_EQ(row.Area.Top, 0);
}

TEST(ListPadLayoutTest, AbsurdMeasuresStayInRange) {
    for (const std::int32_t number : {INT32_MIN, -1, 0, 1, INT32_MAX}) {
        ListPadSettings settings;
        settings.VisibleRows = number;
        settings.AutoSize = true;
        settings.BorderStyle = static_cast<PopupBorderstyleConstants>(number);
        const auto layout =
            LayOutListPad(settings, {number, number, number, number, number, number, number, number});
        for (const std::int32_t other : {INT32_MIN, 0, INT32_MAX}) {
            const auto row = layout.RowAt(number, other, number);
            EXPECT_EQ(row.Area.Height(), layout.RowHeight);
            EXPECT_LE(layout.RowUnder(0, other), layout.RowUnder(INT32_MAX, other));
        }
        EXPECT_GE(layout.Pad.Height, 0);
        EXPECT_LE(layout.ShownRows, layout.RowCount);
    }
}

} // namespace quillgrid::test
