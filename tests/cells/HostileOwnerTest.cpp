// A host may do anything while a cell tells its control something: the cell must survive until it has
// finished.

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Groups.h"
#include "tests/cells/FakeOwner.h"

#include <gtest/gtest.h>

namespace quillgrid::test {

namespace {

class HostileOwnerTest : public testing::Test {
protected:
    HostileOwnerTest() {
        cells.Add({.Key = "text", .Caption = "text", .Value = "a"});
        cells.Add({.Key = "list", .Caption = "list", .CellTemplate = qgctColor});
        owner.OnRepaint = [this] {
            owner.OnRepaint = nullptr;
            cells.Clear();
        };
    }
    /// Not held by the test: clearing the collection gives up the last reference.
    Cell& At(const char* key) { return *cells.Find(key); }

    FakeOwner owner;
    Cells cells{&owner};
};

} // namespace

TEST_F(HostileOwnerTest, ClearingDuringAssignment) {
    At("text").SetText("b");
    EXPECT_EQ(cells.Count(), 0);
}

TEST_F(HostileOwnerTest, ClearingDuringUndo) {
    auto& cell = At("text");
    owner.Quiet = true;
    cell.SetText("b");
    owner.Quiet = false;
    cell.Undo();
    EXPECT_EQ(cells.Count(), 0);
    EXPECT_EQ(owner.Calls.back(), "undone text");
}

TEST_F(HostileOwnerTest, ClearingDuringTypeAhead) {
    EXPECT_EQ(CellAccess::TypeAhead(At("list"), U'w'), 16);
    EXPECT_EQ(cells.Count(), 0);
}

TEST_F(HostileOwnerTest, ClearingDuringPercentage) {
    auto& cell = At("text");
    cell.SetMin(0);
    cell.SetMax(10);
    cell.SetPercentValue(*Currency::FromInteger(50));
    EXPECT_EQ(cells.Count(), 0);
}

TEST_F(HostileOwnerTest, ListEmptiedDuringAssignment) {
    owner.OnRepaint = [this] {
        owner.OnRepaint = nullptr;
        At("list").Listitems().Clear();
    };
    At("list").SetListIndex(3);
    EXPECT_EQ(At("list").Listitems().Count(), 0);
    CellAccess::RefreshStaleText(At("list"));
    EXPECT_EQ(At("list").Text(), "Dark green");
}

TEST_F(HostileOwnerTest, ClearingWhenToldOfANewCell) {
    owner.OnOrder = [this] {
        owner.OnOrder = nullptr;
        cells.Clear();
    };
    const auto cell = cells.Add({.Caption = "new", .Value = "v"});
    EXPECT_EQ(cell->Text(), "v");
    EXPECT_EQ(cells.Count(), 0);
}

TEST_F(HostileOwnerTest, GroupsClearedWhenToldOfTheirHeading) {
    Groups groups{&owner, cells};
    owner.OnOrder = [this, &groups] {
        owner.OnOrder = nullptr;
        groups.Clear();
    };
    EXPECT_EQ(groups.Add({.Key = "g"})->Key(), "g");
    EXPECT_EQ(groups.Count(), 0);
}

TEST_F(HostileOwnerTest, ControlGoneDuringAssignment) {
    owner.OnRepaint = [this] { cells.SetOwner(nullptr); };
    auto& cell = At("text");
    cell.SetText("b");
    cell.Undo();
    EXPECT_EQ(cell.Text(), "a");
    EXPECT_EQ(owner.Calls.back(), "row text");
}

} // namespace quillgrid::test
