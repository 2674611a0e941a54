#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Columns.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/cells/ImageList.h"
#include "quillgrid/cells/PersistentCells.h"
#include "quillgrid/cells/SortedCells.h"
#include "tests/cells/ErrorExpectation.h"
#include "tests/cells/FakeOwner.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace quillgrid::test {

namespace {

class CollectionsTest : public testing::Test {
protected:
    std::shared_ptr<Cell> Add(const char* name, std::int32_t index = 0) {
        return cells.Add({.Index = index, .Key = name, .Caption = name});
    }
    std::string Order() const {
        std::string order;
        for (const auto& cell : cells)
            order += cell->Caption() + std::to_string(cell->Index()) + " ";
        return order;
    }

    FakeOwner owner;
    Cells cells{&owner};
    Groups groups{&owner, cells};
};

} // namespace

TEST_F(CollectionsTest, CellsAreInsertedAndNumbered) {
    Add("a");
    Add("b", -7);
    Add("c", 99);
    EXPECT_EQ(Order(), "a1 b2 c3 ");
    Add("d", 1);
    Add("e", 4);
    EXPECT_EQ(Order(), "d1 a2 b3 e4 c5 ");
    EXPECT_EQ(cells.Remove("A"), 4);
    EXPECT_EQ(cells.Remove(3), 3);
    EXPECT_EQ(Order(), "d1 b2 c3 ");
    EXPECT_EQ(owner.Calls.back(), "order");
    EXPECT_EQ(*(owner.Calls.end() - 2), "removed e");
}

TEST_F(CollectionsTest, NewCellTakesAfterItsControl) {
    owner.Joined = "g";
    const auto cell = cells.Add({.Key = "k", .Caption = "c", .TooltipText = "tip"});
    EXPECT_EQ(cell->ForeColor(), 0x112233U);
    EXPECT_TRUE(cell->FontBold());
    EXPECT_FALSE(cell->FontItalic());
    EXPECT_EQ(cell->Group(), "g");
    EXPECT_EQ(cell->TooltipText(), "tip");
    EXPECT_EQ(cell->Key(), "k");
    EXPECT_EQ(cells.Add({.Group = "own"})->Group(), "own");
}

TEST_F(CollectionsTest, MembersAreFoundByPositionOrKey) {
    Add("a");
    Add("1");
    EXPECT_EQ(cells.Item("1")->Index(), 2);
    EXPECT_EQ(cells.Item(Variant("1"))->Index(), 2);
    EXPECT_EQ(cells.Item(1)->Index(), 1);
    EXPECT_EQ(cells.Item(Variant(1.5))->Index(), 2);
    EXPECT_EQ(cells.Item(Variant(0.6))->Index(), 1);
    EXPECT_EQ(cells.Item(Variant(*Currency::FromInteger(2)))->Index(), 2);
    EXPECT_EQ(cells.Item(std::string("A"))->Index(), 1);
    const Variant missing[] = {0,
                               -1,
                               3,
                               "b",
                               "",
                               Variant(),
                               Variant::Null(),
                               true,
                               0.5,
                               1e300,
                               -1e300,
                               std::numeric_limits<double>::quiet_NaN()};
    for (const auto& key : missing) {
        ExpectError(20092, "Cells.Item Property Get", [&] { cells.Item(key); });
        ExpectError(20092, "Cells.Remove Method", [&] { cells.Remove(key); });
    }
    EXPECT_EQ(cells.Count(), 2);
}

TEST_F(CollectionsTest, TakenKeyAddsNothing) {
    Add("Key");
    Add("b");
    owner.TakeCalls();
    ExpectError(20093, "Cells.Add Method", [&] { Add("KEY", 1); });
    EXPECT_EQ(Order(), "Key1 b2 ");
    EXPECT_EQ(owner.TakeCalls(), Calls{"order"});
}

TEST_F(CollectionsTest, FailingDefinitionTakesTheCellOutAgain) {
    Add("a");
    owner.Region.CompareText = [](std::string_view, std::string_view) -> int {
        throw std::runtime_error("host");
    };
    owner.Desk.Screen = {"x", "y"};
    ExpectError(20093, "Cells.Add Method",
                [&] { cells.Add({.Index = 1, .Key = "f", .CellTemplate = qgctFont}); });
    EXPECT_EQ(Order(), "a1 ");
    EXPECT_EQ(cells.Find("f"), nullptr);
    EXPECT_FALSE(owner.Quiet);
    EXPECT_EQ(owner.Calls[owner.Calls.size() - 2], "ready");
    ExpectError(20099, "Quillgrid.Cell: Define Method",
                [&] { cells.Item(1)->Define({.NewCellTemplate = qgctFont}); });
    EXPECT_FALSE(owner.Quiet);
}

TEST_F(CollectionsTest, ClearTellsTheControlAndCellsLiveOnWithTheirHolder) {
    const auto held = Add("a");
    owner.TakeCalls();
    cells.Clear();
    EXPECT_EQ(owner.TakeCalls(), (Calls{"cleared", "order"}));
    EXPECT_EQ(cells.Count(), 0);
    held->SetText("b");
    EXPECT_EQ(held->Text(), "b");
    Add("a");
}

TEST_F(CollectionsTest, EveryCellLosesAControlThatGoes) {
    const auto removed = Add("a");
    const auto kept = Add("b");
    cells.Remove("a");
    cells.SetOwner(nullptr);
    groups.SetOwner(nullptr);
    owner.TakeCalls();
    for (const auto& cell : {removed, kept}) {
        cell->Define({.NewValue = 1, .NewCellTemplate = qgctboolean});
        cell->Undo();
        cell->SetFocus();
        cell->SetGroup("g");
    }
    groups.Add({.Key = "g"});
    groups.Remove("g");
    groups.Clear();
    cells.Clear();
    EXPECT_EQ(owner.TakeCalls(), Calls{});

    auto list = std::make_unique<Cells>(&owner);
    const auto orphan = list->Add({.Caption = "o"});
    list.reset();
    EXPECT_EQ(CellAccess::Owner(*orphan), nullptr);
}

TEST_F(CollectionsTest, GroupsNameThemselvesAndHeadTheirCells) {
    for (int i = 0; i < 3; ++i)
        groups.Add();
    EXPECT_EQ(groups.Item(3)->Key(), "Group3");
    EXPECT_EQ(groups.Item("group1")->Caption(), "Group1");
    EXPECT_EQ(owner.Joined, "Group3");
    EXPECT_EQ(Add("a")->Group(), "Group3");
    const auto heading = cells.Item(2);
    EXPECT_EQ(heading->Style(), qgcsHeader);
    EXPECT_EQ(heading->Caption(), "Group2");
    EXPECT_EQ(heading->Group(), "Group2");
    EXPECT_EQ(heading->TooltipText(), "Group2");
    EXPECT_EQ(heading->Key(), "");

    const auto group = groups.Add({.Key = "k", .Caption = "&K", .Expanded = false, .TooltipText = "tip"});
    EXPECT_FALSE(group->Expanded());
    EXPECT_EQ(cells.Item(5)->Group(), "k");
    EXPECT_EQ(cells.Item(5)->TooltipText(), "tip");
    EXPECT_EQ(CellAccess::Label(*cells.Item(5)).AccessKey(), 'k');
}

TEST_F(CollectionsTest, TakenGroupKeyChangesNothing) {
    groups.Add({.Key = "main"});
    groups.Add({.Key = "other"});
    ExpectError(20093, "Groups.Add Method", [&] { groups.Add({.Key = "MAIN"}); });
    EXPECT_EQ(groups.Count(), 2);
    EXPECT_EQ(cells.Count(), 2);
    EXPECT_EQ(owner.Joined, "other");
    EXPECT_EQ(groups.Remove("none"), 2);
    EXPECT_EQ(owner.Joined, "other");
    EXPECT_EQ(groups.Remove("OTHER"), 1);
    EXPECT_EQ(owner.Joined, "");
    EXPECT_EQ(cells.Count(), 2);
    groups.Add({.Key = "Group3"});
    ExpectError(20093, "Groups.Add Method", [&] {
        groups.Add();
        groups.Add();
        groups.Remove(1);
        groups.Add();
    });
    ExpectError(20092, "Groups.Item Property Get", [&] { groups.Item("none"); });
    groups.Clear();
    EXPECT_EQ(groups.Count(), 0);
    EXPECT_EQ(owner.Joined, "");
}

TEST_F(CollectionsTest, SortingGivesCellsTheirPlace) {
    const auto a = Add("a");
    const auto b = Add("b");
    const auto c = Add("c");
    SortedCells sorted;
    sorted.Add(c);
    sorted.Add(a);
    sorted.Add(b, 1);
    EXPECT_EQ(b->Index(), 1);
    EXPECT_EQ(c->Index(), 1); // only the inserted one is numbered
    EXPECT_EQ(sorted.PositionOf(*c), 2);
    EXPECT_EQ(sorted.PositionOf(*a), 3);
    sorted.Remove(1);
    EXPECT_EQ(c->Index(), 1);
    EXPECT_EQ(a->Index(), 2);
    EXPECT_EQ(sorted.PositionOf(*b), 0);
    ExpectError(20092, "SortedCells.Add Method", [&] { sorted.Add(b, 4); });
    ExpectError(20092, "SortedCells.Add Method", [&] { sorted.Add(nullptr); });
    ExpectError(20092, "SortedCells.Item Property Get", [&] { sorted.Item(-1); });
    ExpectError(20092, "Cells.Remove Method", [&] { sorted.Remove(3); });
    EXPECT_EQ(cells.Remove("a"), 2); // a place in the display order is no position here
    EXPECT_EQ(Order(), "b1 c2 ");
}

TEST_F(CollectionsTest, LoopsEndWhenTheirBodyChangesTheList) {
    for (const auto* name : {"a", "b", "c"})
        Add(name);
    int seen = 0;
    for (const auto& cell : cells) {
        ++seen;
        if (cell->Caption() == "b") cells.Clear();
    }
    EXPECT_EQ(seen, 2);
}

TEST(Labels, CaptionGivesTextAndAccessKey) {
    struct Case {
        const char *caption, *display;
        std::int32_t key;
    };
    const Case table[] = {{"&Name", "Name", 'n'},
                          {"Save && Exit", "Save  Exit", ' '},
                          {"plain", "plain", ' '},
                          {"&\xC3\x9C"
                           "ber",
                           "\xC3\x9C"
                           "ber",
                           0xFC},
                          {"end&", "end", 0xFC},
                          {"a&B&C", "aBC", 'b'},
                          {"&\xFF", "\xFF", 0xFFFD},
                          {"", "", 0xFFFD}};
    Label label;
    EXPECT_EQ(label.AccessKey(), 0);
    for (const auto& row : table) {
        label.SetCaption(row.caption);
        EXPECT_EQ(label.Caption(), row.caption);
        EXPECT_EQ(label.DisplayCaption(), row.display);
        EXPECT_EQ(label.AccessKey(), row.key) << row.caption;
    }
    label.SetScrollOffset(INT32_MAX);
    label.Move(INT32_MAX, INT32_MAX, INT32_MAX, INT32_MIN);
    EXPECT_EQ(label.SeenAt().Top, INT32_MAX);
}

TEST(ColumnLists, WidthFixesAColumnAndPlacingDoesNot) {
    Columns columns;
    const auto column = columns.Add();
    column->SetWidth(40);
    EXPECT_TRUE(column->Fixed());
    column->Place(3, 0);
    EXPECT_EQ(column->Place(), (Column::Extent{3, 0, true}));
    column->SetWidth(-5);
    EXPECT_EQ(column->Place(), (Column::Extent{3, 0, false}));
    EXPECT_EQ(columns.Item(1), column);
    EXPECT_EQ(columns.Item(2), nullptr);
}

TEST(DesignCells, AreNumberedNamedAndRemoved) {
    PersistentCells records;
    for (int i = 0; i < 3; ++i)
        records.Add();
    const auto second = records.Item("cell2");
    EXPECT_EQ(second->Index(), 2);
    EXPECT_EQ(second->Caption(), "Label2");
    EXPECT_EQ(second->Value(), Variant("Text2"));
    EXPECT_EQ(second->Key(), "");
    EXPECT_EQ(records.Remove(1, false), 2);
    EXPECT_EQ(records.Item(1)->Index(), 2);
    EXPECT_EQ(records.Remove("Cell2", true), 1);
    EXPECT_EQ(records.Item(1)->Index(), 1);
    records.Add();
    ExpectError(20093, "PersistentCells.Add Method", [&] { records.Add(); });
    ExpectError(20092, "PersistentCells.Remove Method", [&] { records.Remove("none", true); });
    EXPECT_TRUE(PersistentCell().Value().IsNull());
}

TEST(HostImages, ArePassedThrough) {
    TaggedImages source;
    source.Images = {{"a", 1, {}}, {"b", 2, {}}};
    ImageList images(&source);
    EXPECT_EQ(images.ImageWidth(), 16);
    EXPECT_EQ(images.ImageHeight(), 32767);
    EXPECT_EQ(images.ListImages().at(1).Key, "b");
    images.Settag("t");
    images.SetMaskColor(9);
    images.SetUseMaskColor(true);
    EXPECT_EQ(source.TagText, "t");
    EXPECT_EQ(images.MaskColor(), 9U);
    EXPECT_TRUE(source.Masked);
    images.SetSource(nullptr);
    images.SetMaskColor(1);
    EXPECT_EQ(images.ImageWidth() + images.Index(), 0);
    EXPECT_TRUE(images.ListImages().empty());
    EXPECT_EQ(images.Overlay(1, 2), nullptr);
}

} // namespace quillgrid::test
