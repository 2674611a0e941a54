#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/Cells.h"
#include "tests/cells/FakeOwner.h"

#include <gtest/gtest.h>

#include <chrono>

namespace quillgrid::test {

namespace {

class ListTest : public testing::Test {
protected:
    std::shared_ptr<Cell> List(std::initializer_list<const char*> texts) {
        const auto cell = cells.Add({.Caption = "c", .CellTemplate = qgctlist});
        for (const auto* text : texts)
            cell->Listitems().Add({.Text = text});
        return cell;
    }
    std::string Type(Cell& cell, char32_t character, std::uint64_t pause) {
        owner.Watch.Ticks += pause;
        CellAccess::TypeAhead(cell, character);
        return cell.Text();
    }

    FakeOwner owner;
    Cells cells{&owner};
};

} // namespace

TEST_F(ListTest, TakesOnlyDataOfItsEntries) {
    const auto cell = List({"S1", "S2"});
    cell->Listitems().Item(1)->SetListImage("img");
    cell->SetValue("s1");
    EXPECT_EQ(cell->Value(), Variant("s1")); // as assigned
    EXPECT_EQ(cell->Text(), "S1");
    EXPECT_EQ(cell->ListImage(), Variant("img"));
    EXPECT_TRUE(cell->Changed());
    for (const Variant& unknown : {Variant("s3"), Variant::Null(), Variant(std::make_shared<std::any>(1))}) {
        cell->SetValue(unknown);
        EXPECT_EQ(cell->Value(), Variant("s1"));
        EXPECT_EQ(cell->ListIndex(), 1);
    }
    cell->SetItemData("S2");
    EXPECT_EQ(cell->ListIndex(), 2);
    cell->SetListIndex(1);
    EXPECT_EQ(cell->Value(), Variant("S1"));
    for (const std::int32_t outside : {0, -1, 3, INT32_MAX, INT32_MIN})
        cell->SetListIndex(outside);
    EXPECT_EQ(cell->ListIndex(), 1);
}

TEST_F(ListTest, EmptyListTakesAnythingAndIsResolvedWhenFilled) {
    const auto cell = cells.Add({.Caption = "c", .Value = 2, .CellTemplate = qgctlist});
    EXPECT_EQ(cell->Value(), Variant(2));
    EXPECT_EQ(cell->Text(), "");
    cell->Listitems().Add({.Text = "one", .ItemData = 1});
    cell->Listitems().Add({.Text = "two", .ItemData = "2", .ListImage = "img"});
    CellAccess::RefreshStaleText(*cell);
    EXPECT_EQ(cell->ListIndex(), 2);
    EXPECT_EQ(cell->Text(), "two");
    EXPECT_EQ(cell->ListImage(), Variant("img"));
    EXPECT_FALSE(cell->Changed());
    cell->Listitems().Item(2)->SetText("deux");
    CellAccess::RefreshStaleText(*cell);
    EXPECT_EQ(cell->Text(), "deux");
}

TEST_F(ListTest, OtherListAfterRedefinitionIsResolvedFromItsOwnData) {
    const auto cell = cells.Add({.Caption = "c", .Value = 1, .CellTemplate = qgctSalutation});
    cell->Define({.NewValue = "b", .NewCellTemplate = qgctlist});
    cell->Listitems().Add({.Text = "A", .ItemData = "a"});
    cell->Listitems().Add({.Text = "B", .ItemData = "b"});
    CellAccess::RefreshStaleText(*cell);
    EXPECT_EQ(cell->ListIndex(), 2);
    EXPECT_EQ(cell->Text(), "B");
}

TEST_F(ListTest, BooleanTakesWordsAndIgnoresOtherText) {
    const auto cell = cells.Add({.Caption = "c", .CellTemplate = qgctboolean});
    struct Case {
        Variant value;
        const char* text;
    };
    const Case table[] = {{"yes", "yes"},   {0, "no"},      {1, "yes"},    {false, "no"}, {true, "yes"},
                          {"maybe", "yes"}, {"nein", "no"}, {"JA", "yes"}, {"", "no"}};
    for (const auto& row : table) {
        cell->SetValue(row.value);
        EXPECT_EQ(cell->Text(), row.text) << row.value.ToPlainText();
        EXPECT_EQ(CellAccess::StoredValue(*cell), Variant(std::string(row.text) == "yes"));
    }
}

TEST_F(ListTest, BooleanRuleWithoutEntriesStillSelects) {
    const auto cell = cells.Add({.Caption = "c"});
    cell->SetListImage("own");
    cell->SetValidationRule(qgvrBoolean);
    cell->SetValue(true);
    EXPECT_EQ(cell->ListIndex(), 1);
    EXPECT_EQ(cell->Value(), Variant(std::int16_t{-1}));
    EXPECT_EQ(cell->Text(), "");
    EXPECT_EQ(cell->ListImage(), Variant("own"));
    cell->SetValue(false);
    EXPECT_EQ(cell->ListIndex(), 2);
    EXPECT_EQ(cell->Value(), Variant(std::int16_t{0}));
}

TEST_F(ListTest, TextStyleOnlyStoresIndexAndData) {
    const auto cell = cells.Add({.Caption = "c", .Value = "v", .CellTemplate = qgctCombo});
    cell->Listitems().Add({.Text = "one"});
    cell->SetListIndex(1);
    cell->SetItemData(99);
    EXPECT_EQ(cell->ListIndex(), 1);
    EXPECT_EQ(cell->ItemData(), Variant(99));
    EXPECT_TRUE(cell->Value().IsNull());
    EXPECT_EQ(CellAccess::TypeAhead(*cell, U'o'), 0);
}

TEST_F(ListTest, EntriesKnowImagesDataAndIndent) {
    Listitems items;
    const auto plain = items.Add({.Text = "a", .Indent = 150});
    EXPECT_EQ(plain->ItemData(), Variant("a"));
    EXPECT_TRUE(plain->ListImage().IsNull());
    EXPECT_EQ(plain->Indent(), 150);
    plain->SetIndent(150);
    EXPECT_EQ(plain->Indent(), 99);
    plain->SetIndent(-1);
    EXPECT_EQ(plain->Indent(), 0);
    EXPECT_FALSE(items.HasImages());
    items.Add({.Text = "b", .ListImage = "img"});
    EXPECT_TRUE(items.HasImages());
    items.Remove(0);
    items.Remove(3);
    EXPECT_EQ(items.Count(), 2);
    items.Remove(1);
    EXPECT_EQ(items.Item(1)->Text(), "b");
    EXPECT_EQ(items.Item(2), nullptr);
    EXPECT_EQ(items.Item("b"), nullptr);
    EXPECT_EQ(items.Item(Variant(1.4))->Text(), "b");
    items.Clear();
    EXPECT_FALSE(items.HasImages());
    EXPECT_EQ(items.Listitem(), items.Listitem());
    items.SetListitem(plain);
    EXPECT_EQ(items.Listitem(), plain);
}

TEST_F(ListTest, ImagesAreCountedHoweverTheyComeAndGo) {
    Listitems items;
    const auto first = items.Add({.Text = "a", .ListImage = Variant::Null()});
    const auto second = items.Add({.Text = "b", .ListImage = "img"});
    first->SetListImage("img");
    first->SetListImage("other");
    second->SetListImage(Variant::Null());
    EXPECT_TRUE(items.HasImages());
    items.Remove(1);
    EXPECT_FALSE(items.HasImages());
    first->SetListImage(Variant::Null()); // an entry of no list any more
    first->SetListImage(3);
    EXPECT_FALSE(items.HasImages());
    second->SetListImage(3);
    items.Clear();
    items.Add({.Text = "c"});
    second->SetListImage(Variant());
    second->SetListImage(4);
    EXPECT_FALSE(items.HasImages());
}

TEST_F(ListTest, TypedCharactersSelect) {
    const auto cell = List({"Apple", "Banana", "Berry", "Beta"});
    cell->SetListIndex(1);
    EXPECT_EQ(Type(*cell, U'b', 0), "Banana");
    EXPECT_EQ(Type(*cell, U'E', 499), "Berry");
    EXPECT_EQ(Type(*cell, U'b', 501), "Beta");
    EXPECT_EQ(Type(*cell, U'b', 501), "Banana");
    EXPECT_EQ(Type(*cell, U'b', 100), "Banana"); // nothing begins with "bb"
    EXPECT_EQ(Type(*cell, U'a', 100), "Apple");  // the search text was emptied
    EXPECT_EQ(Type(*cell, U'p', 500), "Apple");  // half a second is a pause
    EXPECT_EQ(Type(*cell, U'\xDFFF', 1), "Apple");
}

TEST_F(ListTest, SearchStartsAtTheFirstEntryWithoutASelectionAndSkipsTheChosenOne) {
    Listitems items;
    for (const auto* text : {"ä", "ÄB", "x"})
        items.Add({.Text = text});
    for (const std::int32_t none : {-1, 0, INT32_MIN}) {
        EXPECT_EQ(items.TypeAhead(none, U'q', 0), none);
        EXPECT_EQ(items.TypeAhead(none, U'Ä', 1), 1);
        EXPECT_EQ(items.TypeAhead(3, U'x', 5'000), 3);
    }
    EXPECT_EQ(items.TypeAhead(INT32_MAX, U'x', 9'000), 3);
    EXPECT_EQ(Listitems{}.TypeAhead(1, U'x', 0), 1);
}

TEST_F(ListTest, SearchTextStartsAgainAfterTwentyCharacters) {
    Listitems items;
    items.Add({.Text = "first"});
    items.Add({.Text = std::string(30, 'x')});
    items.Add({.Text = std::string(30, 'x')});
    items.Add({.Text = "xy"});
    std::int32_t current = 1;
    for (int i = 0; i < 20; ++i)
        current = items.TypeAhead(current, U'x', 1);
    EXPECT_EQ(current, 3); // every further character moves on between the two
    EXPECT_EQ(items.TypeAhead(current, U'x', 1), 4);
    EXPECT_EQ(items.TypeAhead(1, U'y', 1), 4);
}

} // namespace quillgrid::test
