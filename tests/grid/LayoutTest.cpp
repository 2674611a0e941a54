#include "quillgrid/grid/GridLayout.h"
#include "quillgrid/grid/HitTest.h"
#include "quillgrid/grid/SettingsStore.h"

#include <gtest/gtest.h>

#include <limits>

namespace quillgrid {
namespace {

LayoutMeasures Measures(std::int32_t rows, Size surface = {300, 200}) {
    return {.Surface = surface,
            .RowCount = rows,
            .LabelHeight = 13,
            .CellHeight = 13,
            .CaptionHeight = 17,
            .WidestCaption = 70,
            .CaptionWidth = 40,
            .ScrollBarWidth = 16};
}

TEST(Layout, PropertyListFillsTheFrameWithRowsWithoutGaps) {
    EXPECT_EQ(Layout(DefaultSettings(), Measures(5)).DumpText(), "inner bevel 4,4 - 296,196\n"
                                                                 "frame 8,8 - 292,192\n"
                                                                 "content 10,10 - 290,190\n"
                                                                 "labels 10 + 76\n"
                                                                 "values 86 + 203\n"
                                                                 "row height 18\n"
                                                                 "row pitch 18\n"
                                                                 "visible rows 10\n"
                                                                 "no scroll bar\n"
                                                                 "scroll maximum 5\n");
}

TEST(Layout, DefaultStyleKeepsMarginsAndAGapBelowEachRow) {
    GridSettings settings = DefaultSettings();
    settings.Style = qgstDefault;
    EXPECT_EQ(Layout(settings, Measures(10)).DumpText(), "inner bevel 4,4 - 296,196\n"
                                                         "frame 8,8 - 292,192\n"
                                                         "content 18,18 - 274,182\n"
                                                         "labels 18 + 78\n"
                                                         "values 96 + 177\n"
                                                         "row height 20\n"
                                                         "row pitch 24\n"
                                                         "visible rows 6\n"
                                                         "scroll bar 274,10 - 291,190\n"
                                                         "scroll maximum 5\n");
}

TEST(Layout, LabelsOnTheRightSwapTheColumns) {
    GridSettings settings = DefaultSettings();
    settings.Alignment = qgalRightJustify;
    settings.LabelWidth = 50;
    const GridLayout layout = Layout(settings, Measures(3));
    EXPECT_EQ(layout.Values, (ColumnSpan{10, 223}));
    EXPECT_EQ(layout.Labels, (ColumnSpan{233, 56}));
    EXPECT_EQ(layout.RowArea(1), (Rect{10, 28, 289, 46}));
}

TEST(Layout, EveryBevelMovesOnlyTheSidesThatItDrawsOn) {
    const auto content = [](BevelOuterConstants outer, BevelInnerConstants inner,
                            BorderStyleConstants border) {
        GridSettings settings = DefaultSettings();
        settings.BevelOuter = outer;
        settings.BevelInner = inner;
        settings.BorderStyle = border;
        return Layout(settings, Measures(1)).Content;
    };
    const Rect plain{8, 8, 292, 192};
    EXPECT_EQ(content(qgboNone, qgbiNone, qgbsNone), plain);
    EXPECT_EQ(content(qgboRaised, qgbiNone, qgbsNone), plain);
    EXPECT_EQ(content(qgboPanelCenter, qgbiNone, qgbsNone), plain);
    EXPECT_EQ(content(qgboPanelLeft, qgbiNone, qgbsNone), (Rect{8, 8, 290, 192}));
    EXPECT_EQ(content(qgboDialogLeft, qgbiNone, qgbsNone), (Rect{8, 8, 290, 192}));
    EXPECT_EQ(content(qgboPanelRight, qgbiNone, qgbsNone), (Rect{10, 8, 292, 192}));
    EXPECT_EQ(content(qgboDialogTop, qgbiNone, qgbsNone), (Rect{8, 8, 292, 190}));
    EXPECT_EQ(content(qgboNone, qgbiGroupFrame, qgbsRaisedLight), plain.Shrunk(4));
}

TEST(Layout, ScrollBarComesWithTheFirstRowThatDoesNotFitUnlessItIsTheOnlyOne) {
    EXPECT_FALSE(Layout(DefaultSettings(), Measures(10)).ScrollBarShown());
    const GridLayout scrolled = Layout(DefaultSettings(), Measures(11));
    EXPECT_EQ(scrolled.ScrollBar, (Rect{274, 10, 291, 190}));
    EXPECT_EQ(scrolled.ScrollMaximum, 2);
    EXPECT_EQ(scrolled.Values.Right(), 273);
    const GridLayout one = Layout(DefaultSettings(), Measures(1, {96, 36}));
    EXPECT_EQ(one.VisibleRows, 0);
    EXPECT_FALSE(one.ScrollBarShown());
    EXPECT_EQ(Layout(DefaultSettings(), Measures(10, {300, 92})).ScrollMaximum, 7);
    EXPECT_EQ(Layout(DefaultSettings(), Measures(0)).ScrollMaximum, 1);
}

TEST(Layout, CaptionBarStandsInTheFrameAndPushesTheRowsDown) {
    GridSettings settings = DefaultSettings();
    settings.ShowCaption = true;
    EXPECT_FALSE(Layout(settings, Measures(5)).CaptionShown()) << "no caption, no bar";
    settings.Caption = "Form";
    settings.BevelOuter = qgboRaised;
    settings.BevelInner = qgbiSunken;
    EXPECT_EQ(Layout(settings, Measures(5)).DumpText(), "inner bevel 4,4 - 296,196\n"
                                                        "frame 10,39 - 290,190\n"
                                                        "content 12,41 - 288,188\n"
                                                        "labels 12 + 76\n"
                                                        "values 88 + 199\n"
                                                        "row height 18\n"
                                                        "row pitch 18\n"
                                                        "visible rows 8\n"
                                                        "no scroll bar\n"
                                                        "scroll maximum 5\n"
                                                        "caption bar 10,12 - 290,31\n"
                                                        "close box 271,12 - 290,31\n"
                                                        "menu box 10,12 - 29,31\n");
    settings.ShowCloseBox = settings.ShowMenuBox = false;
    EXPECT_TRUE(Layout(settings, Measures(5)).CloseBox.IsEmpty());
    EXPECT_TRUE(Layout(settings, Measures(5)).MenuBox.IsEmpty());
    settings.BevelInner = qgbiGroupFrame;
    const GridLayout framed = Layout(settings, Measures(5));
    EXPECT_FALSE(framed.CaptionShown());
    EXPECT_EQ(framed.Content.Top, 12);
    EXPECT_EQ(framed.GroupCaption, (Rect{12, 0, 58, 17})) << "as high as the control has room";
}

TEST(Layout, TipsBoxTakesItsHeightFromTheRows) {
    GridSettings settings = DefaultSettings();
    settings.ShowTips = true;
    const GridLayout layout = Layout(settings, Measures(5));
    EXPECT_EQ(layout.Tips, (Rect{8, 132, 292, 192}));
    EXPECT_EQ(layout.Frame.Bottom, 132);
    EXPECT_EQ(layout.Content.Bottom, 130);
    EXPECT_EQ(layout.InnerBevel.Bottom, 196);
    EXPECT_EQ(Layout(settings, Measures(5, {300, 40})).VisibleRows, 0);
}

TEST(Layout, GroupMarginStandsBesideTheRowsAndOutsideTheScrollBar) {
    GridSettings settings = DefaultSettings();
    settings.ShowGroupBox = true;
    const auto margin = [&](int rows) { return Layout(settings, Measures(rows)).GroupMargin; };
    EXPECT_EQ(margin(5), (Rect{10, 10, 25, 190}));
    EXPECT_EQ(margin(50), (Rect{10, 10, 25, 190}));
    settings.Alignment = qgalRightJustify;
    EXPECT_EQ(margin(5), (Rect{274, 10, 289, 190}));
    const GridLayout scrolled = Layout(settings, Measures(50));
    EXPECT_EQ(scrolled.GroupMargin, (Rect{258, 10, 273, 190}));
    EXPECT_EQ(scrolled.ScrollBar, (Rect{274, 10, 291, 190}));
    EXPECT_EQ(scrolled.Content.Right, 258);
    EXPECT_EQ(scrolled.Values.Left, 10);
    settings.Style = qgstDefault;
    EXPECT_EQ(Layout(settings, Measures(5)).Content, (Rect{18, 18, 274, 182}));
    settings.Alignment = qgalLeftJustify;
    EXPECT_EQ(Layout(settings, Measures(5)).Content, (Rect{26, 18, 290, 182}));
}

TEST(Layout, NoSettingAndNoSizeBreaksTheArithmetic) {
    for (const std::int32_t extreme :
         {std::numeric_limits<std::int32_t>::min(), -1, 0, 1, std::numeric_limits<std::int32_t>::max()}) {
        GridSettings settings = DefaultSettings();
        settings.BorderWidth = settings.BevelWidth = settings.LabelWidth = extreme;
        settings.Style = static_cast<StyleConstants>(extreme);
        const GridLayout layout = Layout(settings, {.Surface = {extreme, extreme},
                                                    .RowCount = extreme,
                                                    .LabelHeight = extreme,
                                                    .CellHeight = extreme,
                                                    .WidestCaption = extreme,
                                                    .ScrollBarWidth = extreme});
        EXPECT_GT(layout.RowPitch, 0);
        EXPECT_GE(layout.VisibleRows, 0);
        EXPECT_GE(layout.ScrollMaximum, 1);
        EXPECT_GE(layout.Values.Width, 0);
    }
}

TEST(HitTest, FindsRowAndSideAndNothingInGapsMarginsAndBelowTheLastRow) {
    GridSettings settings = DefaultSettings();
    settings.Style = qgstDefault;
    const GridLayout layout = Layout(settings, Measures(10));
    const auto hit = [&](std::int32_t x, std::int32_t y) { return HitTest(layout, 3, 5, {x, y}); };
    EXPECT_EQ(hit(18, 18), (Hit{HitPlace::Label, 3}));
    EXPECT_EQ(hit(96, 37), (Hit{HitPlace::Value, 3}));
    EXPECT_EQ(hit(96, 42), (Hit{HitPlace::Value, 4}));
    EXPECT_EQ(hit(96, 40), Hit{}); // between two rows
    EXPECT_EQ(hit(17, 18), Hit{});
    EXPECT_EQ(hit(100, 18 + 3 * 24), Hit{});
    EXPECT_EQ(hit(280, 20), Hit{}); // scroll bar
}

} // namespace
} // namespace quillgrid
