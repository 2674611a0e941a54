#include "quillgrid/grid/DisplayOrder.h"
#include "quillgrid/grid/SettingsStore.h"

#include <gtest/gtest.h>

namespace quillgrid {
namespace {

/// Cells "b", "a" alone, a group "One" with "z", "y" and a group "Two" with "x", headings by their caption.
struct Form {
    Cells CellList;
    Groups GroupList{nullptr, CellList};
    GridSettings Settings = DefaultSettings();

    Form() {
        Add("b", "");
        Add("a", "");
        GroupList.Add({.Key = "Two"});
        Add("x", "two");
        GroupList.Add({.Key = "One"});
        Add("z", "One");
        Add("y", "ONE");
    }

    std::shared_ptr<Cell> Add(const std::string& caption, const std::string& group) {
        return CellList.Add({.Key = caption, .Caption = Variant(caption), .Group = group});
    }

    std::string Rows() const {
        std::string rows;
        for (const auto& cell : DisplayOrder(CellList, GroupList, Settings, BuiltInLocale("de-DE"))) {
            rows += (rows.empty() ? "" : " ") + cell->Caption();
        }
        return rows;
    }
};

TEST(DisplayOrder, FollowsGroupedAndSorted) {
    Form form;
    EXPECT_EQ(form.Rows(), "b a Two x One z y");
    form.Settings.Sorted = true;
    EXPECT_EQ(form.Rows(), "a b x y z");
    form.Settings.Grouped = true;
    EXPECT_EQ(form.Rows(), "a b One y z Two x");
    form.Settings.Sorted = false;
    EXPECT_EQ(form.Rows(), "b a Two x One z y");
    form.GroupList.Item("one")->SetExpanded(false);
    EXPECT_EQ(form.Rows(), "b a Two x One");
    form.Settings.Sorted = true;
    EXPECT_EQ(form.Rows(), "a b One Two x");
}

TEST(DisplayOrder, LosesNoCellOfAGroupWithoutHeadingOrEntry) {
    Form form;
    form.Settings.Grouped = true;
    form.Add("lost", "Nowhere");
    EXPECT_EQ(form.Rows(), "b a Two x One z y lost");
    form.GroupList.Item("One")->SetExpanded(false);
    form.GroupList.Remove("One"); // the heading stays, of an unknown group
    EXPECT_EQ(form.Rows(), "b a Two x One z y lost");
}

TEST(DisplayOrder, LeavesOutWhatIsHiddenOrAboveTheLevelAndTheGroupOfAHiddenHeading) {
    Form form;
    form.CellList.Item("a")->SetVisible(false);
    form.CellList.Item("z")->SetUserlevelVisible(2);
    EXPECT_EQ(form.Rows(), "b Two x One y");
    form.Settings.UserLevel = 2;
    EXPECT_EQ(form.Rows(), "b Two x One z y");
    form.Settings.Grouped = true;
    form.CellList.Item(3)->SetVisible(false);
    EXPECT_EQ(form.Rows(), "b One z y");
}

TEST(DisplayOrder, EqualCaptionsKeepTheirOrderAndDigitsBelongToTheKey) {
    Cells cells;
    Groups groups(nullptr, cells);
    GridSettings settings = DefaultSettings();
    settings.Sorted = true;
    for (const char* caption : {"Same", "A0", "same", "A", "SAME"})
        cells.Add({.Caption = Variant(caption)});
    std::string rows;
    for (const auto& cell : DisplayOrder(cells, groups, settings, BuiltInLocale("de-DE")))
        rows += cell->Caption() + " ";
    EXPECT_EQ(rows, "A0 A Same same SAME ");
}

} // namespace
} // namespace quillgrid
