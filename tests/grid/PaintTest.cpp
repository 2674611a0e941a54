#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace quillgrid {
namespace {

using headless::HeadlessHost;
using headless::RecordingCanvas;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

std::string Dump(const RecordingCanvas& canvas) {
    std::string dump;
    for (const std::string& call : canvas.Calls())
        dump += call + "\n";
    return dump;
}

TEST(Paint, PropertyListWithAGridAndTheCurrentLabelHighlighted) {
    HeadlessHost host({200, 80});
    host.Grid->Add({.Caption = Variant("&Name"), .Value = Variant("Ann")});
    host.Grid->Add({.Caption = Variant("Amount"), .Value = Variant(12.5), .CellTemplate = qgctNumber});
    host.Grid->Refresh();
    EXPECT_EQ(Dump(host.Paint()), "clip 0,0 - 200,80\n"
                                  "fill 0,0 - 200,80 sys15\n"
                                  "fill 10,10 - 190,70 sys5\n"
                                  "edge 8,8 - 192,72 sunken\n"
                                  "line 10,28 - 190,28 sys15\n"
                                  "line 10,46 - 190,46 sys15\n"
                                  "line 57,10 - 57,70 sys15\n"
                                  "fill 10,47 - 190,70 sys5\n"
                                  "clip 10,10 - 190,70\n"
                                  "fill 58,10 - 189,28 sys5\n"
                                  "text 61,11 - 186,27 'Ann' sys8 left\n"
                                  "fill 58,29 - 189,46 sys5\n"
                                  "button 173,29 - 189,46\n"
                                  "line 173,29 - 173,46 sys22\n"
                                  "glyph 173,29 - 189,46 calculator\n"
                                  "text 61,29 - 171,45 '12,5' sys8 right\n"
                                  "fill 10,10 - 57,28 sys13\n"
                                  "text 13,10 - 55,28 'Name' sys14 left\n"
                                  "fill 10,29 - 57,46 sys5\n"
                                  "text 13,28 - 55,46 'Amount' sys8 left\n"
                                  "clip off\n");
}

TEST(Paint, DefaultStyleHasSunkenValuesAndNoGrid) {
    HeadlessHost host({200, 80});
    host.Grid->SetStyle(qgstDefault);
    host.Grid->Add({.Caption = Variant("Name"), .Value = Variant("Ann")});
    host.Grid->Refresh();
    const RecordingCanvas canvas = host.Paint();
    EXPECT_TRUE(canvas.Starting("line").empty());
    EXPECT_THAT(canvas.Starting("edge"),
                ElementsAre("edge 8,8 - 192,72 sunken", "edge 54,18 - 189,38 sunken"));
    EXPECT_THAT(canvas.Starting("text 60"), ElementsAre("text 60,22 - 183,34 'Ann' sys8 left"));
    EXPECT_THAT(canvas.Calls(), Contains("fill 18,18 - 54,38 sys15"));
}

TEST(Paint, InkSaysDisabledErrorOwnColourAndLevel) {
    HeadlessHost host;
    for (const char* key : {"plain", "off", "locked", "level", "own"}) {
        host.Grid->Add({.Key = key, .Caption = Variant(""), .Value = Variant(key)});
    }
    host.Grid->Cells().Item("off")->SetEnabled(false);
    host.Grid->Cells().Item("locked")->SetLocked(true);
    host.Grid->Cells().Item("level")->SetUserLevelEnabled(1);
    host.Grid->Cells().Item("own")->SetForeColor(Rgb(0, 128, 0));
    host.Grid->Cells().Item("own")->SetFontBold(true);
    host.Grid->SetUseSystemColors(false);
    host.Grid->SetCellForeColor(Rgb(0, 0, 255)); // cells made before keep nothing of the earlier colour
    host.Grid->SetCellBackColorDisabled(Rgb(9, 9, 9));
    host.Grid->Refresh();
    const RecordingCanvas canvas = host.Paint();
    EXPECT_THAT(canvas.Starting("text 19"), ElementsAre("text 19,11 - 286,27 'plain' #0000ff left",
                                                        "text 19,29 - 286,45 'off' sys17 left",
                                                        "text 19,47 - 286,63 'locked' #0000ff left",
                                                        "text 19,65 - 286,81 'level' sys17 left",
                                                        "text 19,83 - 286,99 'own' #008000 left bold"));
    EXPECT_THAT(canvas.Calls(), Contains("fill 16,65 - 289,82 #090909"));
}

TEST(Paint, SecretsStaySecret) {
    HeadlessHost host;
    host.Images.Add("LOCK");
    host.Grid->Add({.Key = "password",
                    .Caption = Variant("p"),
                    .Value = Variant("gr\u00fcn"),
                    .CellTemplate = qgctPassword});
    host.Grid->Add({.Key = "level", .Caption = Variant("l"), .Value = Variant("salary")});
    host.Grid->Add({.Key = "hidden", .Caption = Variant("h"), .Value = Variant("salary")});
    host.Grid->Cells().Item("level")->SetUserLevelDataVisible(1);
    host.Grid->Cells().Item("hidden")->SetDataVisible(false);
    host.Grid->SetPasswordChar("\u25cfx");
    host.Grid->Refresh();
    const RecordingCanvas canvas = host.Paint();
    EXPECT_THAT(canvas.Texts(), ElementsAre("\u25cf\u25cf\u25cf\u25cf", "p", "l", "h"));
    EXPECT_THAT(canvas.Starting("image"), ElementsAre("image 26,29 - 42,45", "image 26,47 - 42,63"));
    EXPECT_EQ(host.Box.CurrentLook.Mask, "\u25cf");
    host.Grid->SetPasswordChar("");
    EXPECT_EQ(host.Grid->PasswordChar(), "*");
}

TEST(Paint, SwatchesImagesAndPercentBars) {
    HeadlessHost host;
    host.Images.Add("money");
    host.Grid->Add(
        {.Key = "colour", .Caption = Variant("c"), .Value = Variant(0x0000FF), .CellTemplate = qgctColor});
    host.Grid->Add(
        {.Key = "money", .Caption = Variant("m"), .Value = Variant(5), .CellTemplate = qgctCurrency});
    host.Grid->Add(
        {.Key = "half", .Caption = Variant("p"), .Value = Variant(50), .CellTemplate = qgctPercent});
    host.Grid->Refresh();
    const RecordingCanvas canvas = host.Paint();
    EXPECT_THAT(canvas.Calls(), Contains("fill 26,14 - 36,24 #000000"));
    EXPECT_THAT(canvas.Calls(), Contains("fill 27,15 - 35,23 #ff0000"));
    EXPECT_THAT(canvas.Calls(), Contains("image 26,29 - 42,45"));
    EXPECT_THAT(canvas.Calls(), Contains("text 46,29 - 286,45 '5,00 \u20ac' sys8 right"));
    EXPECT_THAT(canvas.Calls(), Contains("text 24,46 - 289,64 '50,00 %' sys8 centre"));
    EXPECT_THAT(canvas.Calls(), Contains("fill 24,47 - 157,64 sys1"));
    EXPECT_THAT(canvas.Calls(), Contains("text 24,46 - 289,64 '50,00 %' sys14 centre"));
}

TEST(Paint, OnlyAnEntryThatIsAColourHasASwatch) {
    HeadlessHost host;
    const auto cell = host.Grid->Add({.Caption = Variant("c"), .CellTemplate = qgctColor});
    cell->Listitems().Clear();
    cell->Listitems().Add({.Text = "none", .ItemData = Variant("")});
    cell->Listitems().Add({.Text = "red", .ItemData = Variant("255")});
    const auto swatch = [&](const char* data) {
        cell->SetValue(Variant(data));
        host.Grid->Refresh();
        return host.Paint().Starting("fill 27,15 - 35,23");
    };
    EXPECT_THAT(swatch("255"), ElementsAre("fill 27,15 - 35,23 #ff0000"));
    EXPECT_THAT(swatch(""), ::testing::IsEmpty());
}

TEST(Paint, TouchesOnlyTheRowsInThePartToPaint) {
    HeadlessHost small({400, 1850});
    HeadlessHost large({400, 1850});
    for (int i = 1; i <= 101; ++i)
        small.Grid->Add({.Caption = Variant(i), .Value = Variant(i)});
    for (int i = 1; i <= 10'000; ++i)
        large.Grid->Add({.Caption = Variant(i), .Value = Variant(i)});
    small.Grid->Refresh();
    large.Grid->Refresh();
    ASSERT_EQ(large.Grid->VisibleRows(), 101);
    ASSERT_EQ(small.Grid->VisibleRows(), 101);
    large.Grid->ScrollTo(5'000);
    const auto whole = large.Paint();
    EXPECT_EQ(whole.Count(), small.Paint().Count());
    EXPECT_EQ(whole.Texts().size(), 2U * 101U);
    EXPECT_EQ(whole.Texts().front(), "5000");
    const auto row = large.Paint(large.Grid->ValueArea(*large.Grid->RowCell(5'003)));
    EXPECT_THAT(row.Texts(), ElementsAre("5003", "5003"));
    const std::size_t measured = large.Metrics.Measured;
    large.Grid->Refresh();
    EXPECT_EQ(large.Metrics.Measured, measured) << "captions are measured once";
}

TEST(Paint, NothingIsPaintedOutsideTheContentByRowsAndLabelsTooWide) {
    HeadlessHost host({96, 36});
    host.Grid->Add({.Caption = Variant(std::string(500, 'x')), .Value = Variant("v")});
    host.Grid->Add({.Caption = Variant("y"), .Value = Variant("w")});
    host.Grid->Refresh();
    const auto canvas = host.Paint();
    EXPECT_THAT(canvas.Calls(), Contains("clip 10,10 - 70,26"));
    EXPECT_TRUE(host.Paint({-50, -50, -10, -10}).Texts().empty());
}

TEST(Paint, CaptionBarShowsItsBoxesInThreeStates) {
    HeadlessHost host({200, 120});
    host.Grid->SetCaption("Form");
    host.Grid->SetShowCaption(true);
    host.Grid->Refresh();
    const RecordingCanvas canvas = host.Paint();
    EXPECT_THAT(canvas.Texts(), Contains("Form"));
    EXPECT_THAT(canvas.Starting("glyph"),
                ElementsAre("glyph 175,8 - 192,25 close", "glyph 8,8 - 25,25 drop-down"));
    EXPECT_THAT(canvas.Starting("edge"), ElementsAre("edge 175,8 - 192,25 flat", "edge 8,8 - 25,25 flat",
                                                     "edge 8,33 - 192,112 sunken"));
    host.Grid->SetShowCloseBox(false);
    host.Grid->SetCaption("");
    host.Grid->Refresh();
    EXPECT_THAT(host.Paint().Starting("glyph"), ::testing::IsEmpty());
}

TEST(Paint, GroupFrameHasTheCaptionInItsEdge) {
    HeadlessHost host({200, 120});
    host.Grid->SetCaption("Form");
    host.Grid->SetBevelInner(qgbiGroupFrame);
    host.Grid->SetBevelWidth(12);
    host.Grid->Refresh();
    const RecordingCanvas canvas = host.Paint();
    EXPECT_THAT(canvas.Starting("edge"),
                ElementsAre("edge 12,12 - 188,108 etched", "edge 18,18 - 182,102 sunken"));
    EXPECT_THAT(canvas.Starting("text 20,7"), ElementsAre("text 20,7 - 54,20 'Form' sys8 centre bold"));
    const std::string dump = Dump(canvas);
    EXPECT_LT(dump.find("sunken"), dump.find("'Form'")); // or the border would strike the caption through
}

TEST(Paint, ButtonsFollowTheAppearance) {
    HeadlessHost host({200, 80});
    host.Grid->Add({.Caption = Variant("When"), .CellTemplate = qgctDate});
    host.Grid->Refresh();
    const auto button = [&](AppearanceConstants appearance) {
        host.Grid->SetAppearance(appearance);
        host.Grid->Refresh();
        std::vector<std::string> calls = host.Paint().Starting("button");
        for (const auto& glyph : host.Paint().Starting("glyph"))
            calls.push_back(glyph);
        return calls;
    };
    EXPECT_THAT(button(qgap3D), ElementsAre("button 173,10 - 189,28", "glyph 173,10 - 189,28 clock"));
    EXPECT_THAT(button(qgapFlat), ElementsAre("glyph 173,10 - 189,28 clock"));
    EXPECT_THAT(button(qgapTrack3D), ElementsAre("glyph 173,10 - 189,28 clock"));
    host.Grid->Cell()->SetButton(static_cast<ButtonStyleConstants>(99));
    EXPECT_THAT(button(qgapFlat), ::testing::IsEmpty()) << "no such glyph";
}

TEST(Paint, AFlatButtonDoesNotInterruptTheEdgeOfItsValue) {
    HeadlessHost host({200, 80});
    host.Grid->SetStyle(qgstDefault);
    host.Grid->SetAppearance(qgapFlat);
    const auto cell = host.Grid->Add({.Caption = Variant("When"), .CellTemplate = qgctDate});
    host.Grid->Refresh();
    const Rect value = host.Grid->ValueArea(*cell);
    const std::string edge = "edge " + std::to_string(value.Left) + "," + std::to_string(value.Top);
    const auto calls = host.Paint().Calls();
    const auto starting = [&calls](std::size_t from, const std::string& start) {
        while (from < calls.size() && calls[from].rfind(start, 0) != 0)
            ++from;
        return from;
    };
    const std::size_t strip =
        starting(0, "fill " + std::to_string(value.Right - 16) + "," + std::to_string(value.Top));
    ASSERT_LT(strip, calls.size());
    EXPECT_LT(starting(strip, edge), calls.size()) << "the strip covers the edge for good";
}

TEST(Paint, GroupMarginShowsWhichGroupsAreOpen) {
    HeadlessHost host({200, 120});
    host.Grid->SetGrouped(true);
    host.Grid->SetShowGroupBox(true);
    host.Grid->AddGroup({.Key = "open"});
    host.Grid->Add({.Caption = Variant("inside")});
    host.Grid->AddGroup({.Key = "shut", .Expanded = false});
    host.Grid->Refresh();
    EXPECT_THAT(host.Paint().Starting("glyph"),
                ElementsAre("glyph 10,10 - 25,28 collapse", "glyph 10,46 - 25,64 expand"));
    EXPECT_THAT(host.Paint({30, 0, 200, 120}).Starting("glyph"), ::testing::IsEmpty());
}

TEST(Paint, TipsBoxTellsOfTheCurrentCell) {
    HeadlessHost host({200, 160});
    host.Grid->SetShowTips(true);
    host.Grid->Add({.Caption = Variant("&Name"), .TooltipText = "As in the passport"});
    host.Grid->Add({.Caption = Variant("Age"), .TooltipText = "In years"});
    host.Grid->Refresh();
    const auto tips = [&] { return host.Paint({0, 95, 200, 160}).Texts(); };
    EXPECT_THAT(tips(), ElementsAre("Name", "As in the passport"));
    EXPECT_THAT(host.Paint().Starting("text 12,96"),
                ElementsAre("text 12,96 - 188,109 'Name' sys8 left bold"));
    EXPECT_THAT(host.Paint({0, 0, 200, 90}).Texts(), Not(Contains("As in the passport")));
    host.EnterControl();
    host.Surface.Invalid.clear();
    host.Press(KeyDown);
    EXPECT_THAT(host.Surface.Invalid, Contains(Rect{8, 92, 192, 152}));
    EXPECT_THAT(tips(), ElementsAre("Age", "In years"));
}

TEST(Paint, FlatAndRaisedFramesMeetTheTable) {
    HeadlessHost host({200, 80});
    host.Grid->SetBorderStyle(qgbsFlat);
    host.Grid->Refresh();
    EXPECT_THAT(host.Paint().Calls(), Contains("fill 9,9 - 190,70 sys5"));
    host.Grid->SetBorderStyle(qgbsRaisedLight);
    host.Grid->Refresh();
    EXPECT_THAT(host.Paint().Calls(), Contains("line 9,9 - 190,9 sys15"));
    EXPECT_THAT(host.Paint().Calls(), Contains("line 9,9 - 9,70 sys15"));
}

} // namespace
} // namespace quillgrid
