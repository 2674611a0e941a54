// The published properties and methods of the control: defaults, limits, effects, saving and loading.
#include "quillgrid/grid/GridPropertyTable.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"
#include "quillgrid/hosts/headless/MemoryBag.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <random>

namespace quillgrid {
namespace {

using headless::HeadlessHost;
using headless::MemoryBag;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::string Described(const Variant& value) {
    if (const auto font = FontFrom(value)) return font->Name + (font->Bold ? " bold" : "");
    if (value.Get<std::int16_t>()) return "short " + value.ToPlainText();
    if (value.Get<std::int32_t>()) return "long " + value.ToPlainText();
    if (value.Get<bool>()) return value.ToPlainText();
    return "'" + value.ToPlainText() + "'";
}

/// "Key value / default" of everything that a control writes.
std::vector<std::string> Saved(const Quillgrid& grid) {
    MemoryBag bag;
    grid.WriteProperties(bag);
    std::vector<std::string> lines;
    for (const auto& entry : bag.Entries)
        lines.push_back(entry.Key + " " + Described(entry.Value) + " / " + Described(entry.Default));
    return lines;
}

TEST(Settings, ANewControlHasTheDefaultsAndSavesThemInOrder) {
    const HeadlessHost host;
    EXPECT_THAT(
        Saved(*host.Grid),
        ElementsAre(
            "Font Sans / Sans", "CellFont Sans / Sans", "CaptionFont Sans bold / Sans", "ToolTipText '' / ''",
            "CellForeColor long -2147483640 / long -2147483640", "Alignment long 0 / long 0",
            "CellForeColorDisabled long -2147483631 / long -2147483631",
            "CellBackColor long -2147483643 / long -2147483643",
            "CellBackColorDisabled long -2147483643 / long -2147483643",
            "CellForeColorError long 255 / long 255", "UserLevel long 0 / short 0", "AllowEscape True / True",
            "NumSeparators '.,' / '.,'", "TimeSeparators ':.,#' / ':.,#'", "DateSeparators ':/.,#' / ':/.,#'",
            "CellCount long 1 / short 1", "Gridcolor long -2147483633 / long -2147483633",
            "Style long 1 / short 1", "AllowWrap True / True", "AllowEnter True / True",
            "LabelForeColor long -2147483640 / long -2147483640",
            "LabelForeColorFocus long -2147483640 / long -2147483640",
            "LabelBackColor long -2147483633 / long -2147483633",
            "LabelBackColorFocus long -2147483633 / long -2147483633",
            "Groupboxcolor long -2147483643 / long -2147483643", "BorderStyle long 2 / long 2",
            "LabelWidth long 0 / short 0", "Language long 0 / long 0", "PasswordChar '*' / '*'",
            "BackColor long -2147483633 / long -2147483633", "Caption 'Quillgrid1' / ''",
            "BorderWidth long 4 / short 4", "BevelWidth long 4 / short 4", "BevelInner long 0 / short 0",
            "ShowTips False / short 0", "BevelOuter long 0 / short 0", "ShowCaption False / False",
            "ShowGroupBox False / False", "ShowCloseBox True / True", "Appearance long 0 / short 0",
            "ShowMenuBox True / True", "FillColor long -2147483647 / long -2147483647",
            "Sorted False / False", "Grouped False / False", "UseSystemColors True / True",
            "AutoHolidays long 1 / long 1", "AllowHoliday True / True", "AllowSaturday True / True",
            "AllowSunday True / True", "FirstDayOfWeek long 0 / short 0", "FirstWeekOfYear long 0 / short 0",
            "WorkHoliday False / False", "WorkSaturday False / False", "WorkSunday False / False"));
    ASSERT_EQ(host.Grid->Cells().Count(), 1);
    EXPECT_EQ(host.Grid->Cells().Item(1)->Caption(), "Label1");
    EXPECT_EQ(host.Grid->Cells().Item(1)->Text(), "Text1");
    EXPECT_EQ(host.Grid->CurrentRow(), 1);
}

TEST(Settings, LoadingAsksInOrderAndFillsWhatIsMissing) {
    const MemoryBag empty;
    const HeadlessHost host({300, 200}, "de-DE", true, &empty);
    ASSERT_EQ(empty.Asked.size(), 54U);
    EXPECT_EQ(empty.Asked.front(), "CellCount");
    EXPECT_EQ(empty.Asked[1], "Font");
    EXPECT_EQ(empty.Asked[4], "ToolTipText");
    EXPECT_EQ(empty.Asked[24], "GroupBoxColor");
    EXPECT_EQ(empty.Asked.back(), "AutoHolidays");
    EXPECT_EQ(host.Grid->CellCount(), 1);
    EXPECT_EQ(host.Grid->Caption(), "");
    EXPECT_FALSE(host.Grid->CaptionFont().Bold);
    EXPECT_EQ(host.Surface.Background, ColourButtonFace);
}

TEST(Settings, LoadingLimitsTheCountAndTheSeparatorsAndNothingElse) {
    MemoryBag bag;
    bag.Write("cellcount", Variant(5000), Variant());
    bag.Write("NUMSEPARATORS", Variant(";"), Variant());
    bag.Write("Alignment", Variant(7), Variant());
    bag.Write("BorderWidth", Variant(-3), Variant());
    bag.Write("Style", Variant(9), Variant());
    bag.Write("PasswordChar", Variant(""), Variant());
    bag.Write("BevelWidth", Variant("wide"), Variant());
    bag.Write("Caption", Variant::Null(), Variant());
    bag.Write("Font", Variant("Courier"), Variant());
    const HeadlessHost host({300, 200}, "de-DE", true, &bag);
    EXPECT_EQ(host.Grid->Cells().Count(), 1000);
    EXPECT_EQ(host.Grid->NumSeparators(), ".,;");
    EXPECT_EQ(host.Grid->Alignment(), 7);
    EXPECT_EQ(host.Grid->BorderWidth(), -3);
    EXPECT_EQ(host.Grid->Style(), 9);
    EXPECT_EQ(host.Grid->BevelWidth(), 4);
    EXPECT_EQ(host.Grid->Caption(), "");
    EXPECT_EQ(host.Grid->Font().Name, "Sans");
    const auto secret = host.Grid->Add({.Value = Variant("abc"), .CellTemplate = qgctPassword});
    host.Grid->Refresh();
    EXPECT_THAT(host.Paint().Texts(), ::testing::Contains("***"));
    EXPECT_THAT(host.Paint().Texts(), ::testing::Not(::testing::Contains("abc")));
}

Variant RandomValue(std::mt19937& random) {
    switch (random() % 8) {
    case 0: return Variant(static_cast<std::int32_t>(random()));
    case 1: return Variant(static_cast<std::int32_t>(random() % 12) - 1);
    case 2: return Variant(random() % 2 == 0);
    case 3: return Variant(std::string(random() % 4, static_cast<char>(random() % 256)));
    case 4: return Variant(static_cast<double>(random()) * 1e300);
    case 5: return Variant(std::numeric_limits<double>::quiet_NaN());
    case 6: return ToPropertyValue(Font{"x", -1e9, true, false});
    default: return random() % 2 == 0 ? Variant::Null() : Variant();
    }
}

// What a broken file may hold must neither stop the loading nor break layout and painting.
TEST(Settings, AnyBagLoadsPaintsAndComesBackTheSame) {
    std::mt19937 random(2026);
    for (int round = 0; round < 300; ++round) {
        MemoryBag bag;
        for (const std::uint8_t row : WriteOrder)
            bag.Write(PropertyAt(row).BagWriteKey(), RandomValue(random), Variant());
        HeadlessHost host({300, 200}, "de-DE", round % 2 == 0, &bag);
        host.Paint();
        host.EnterControl();
        host.Type("7");
        const auto saved = Saved(*host.Grid);
        MemoryBag second;
        host.Grid->WriteProperties(second);
        const HeadlessHost again({300, 200}, "de-DE", round % 2 == 0, &second);
        EXPECT_EQ(Saved(*again.Grid), saved);
    }
}

using Setter = void (*)(Quillgrid&);
struct SetterRow {
    const char* Key;
    Setter Set;
    bool Repaints;
};

const SetterRow Setters[] = {
    {"Font", [](Quillgrid& grid) { grid.SetFont({"x"}); }, true},
    {"CellFont", [](Quillgrid& grid) { grid.SetCellFont({"x"}); }, true},
    {"CaptionFont", [](Quillgrid& grid) { grid.SetCaptionFont({"x"}); }, true},
    {"ToolTipText", [](Quillgrid& grid) { grid.SetTooltipText("x"); }, true},
    {"Caption", [](Quillgrid& grid) { grid.SetCaption("x"); }, true},
    {"Language", [](Quillgrid& grid) { grid.SetLanguage(qglgEnglish); }, true},
    {"Style", [](Quillgrid& grid) { grid.SetStyle(qgstDefault); }, true},
    {"Appearance", [](Quillgrid& grid) { grid.SetAppearance(qgapFlat); }, true},
    {"Alignment", [](Quillgrid& grid) { grid.SetAlignment(qgalRightJustify); }, true},
    {"LabelWidth", [](Quillgrid& grid) { grid.SetLabelWidth(50); }, true},
    {"CellCount", [](Quillgrid& grid) { grid.SetCellCount(2); }, true},
    {"UserLevel", [](Quillgrid& grid) { grid.SetUserLevel(1); }, true},
    {"AllowEnter", [](Quillgrid& grid) { grid.SetAllowEnter(false); }, false},
    {"AllowWrap", [](Quillgrid& grid) { grid.SetAllowWrap(false); }, false},
    {"AllowEscape", [](Quillgrid& grid) { grid.SetAllowEscape(false); }, false},
    {"NumSeparators", [](Quillgrid& grid) { grid.SetNumSeparators("x"); }, false},
    {"DateSeparators", [](Quillgrid& grid) { grid.SetDateSeparators("x"); }, false},
    {"TimeSeparators", [](Quillgrid& grid) { grid.SetTimeSeparators("x"); }, false},
    {"PasswordChar", [](Quillgrid& grid) { grid.SetPasswordChar("x"); }, true},
    {"UseSystemColors", [](Quillgrid& grid) { grid.SetUseSystemColors(false); }, true},
    {"BackColor", [](Quillgrid& grid) { grid.SetBackColor(1); }, true},
    {"CellForeColor", [](Quillgrid& grid) { grid.SetCellForeColor(1); }, true},
    {"CellForeColorDisabled", [](Quillgrid& grid) { grid.SetCellForeColorDisabled(1); }, true},
    {"CellForeColorError", [](Quillgrid& grid) { grid.SetCellForeColorError(1); }, true},
    {"CellBackColor", [](Quillgrid& grid) { grid.SetCellBackColor(1); }, true},
    {"CellBackColorDisabled", [](Quillgrid& grid) { grid.SetCellBackColorDisabled(1); }, true},
    {"LabelForeColor", [](Quillgrid& grid) { grid.SetLabelForeColor(1); }, true},
    {"LabelForeColorFocus", [](Quillgrid& grid) { grid.SetLabelForeColorFocus(1); }, true},
    {"LabelBackColor", [](Quillgrid& grid) { grid.SetLabelBackColor(1); }, true},
    {"LabelBackColorFocus", [](Quillgrid& grid) { grid.SetLabelBackColorFocus(1); }, true},
    {"Gridcolor", [](Quillgrid& grid) { grid.SetGridcolor(1); }, true},
    {"GroupBoxColor", [](Quillgrid& grid) { grid.SetGroupBoxColor(1); }, true},
    {"FillColor", [](Quillgrid& grid) { grid.SetFillColor(1); }, true},
    {"BorderStyle", [](Quillgrid& grid) { grid.SetBorderStyle(qgbsFlat); }, true},
    {"BorderWidth", [](Quillgrid& grid) { grid.SetBorderWidth(9); }, true},
    {"BevelWidth", [](Quillgrid& grid) { grid.SetBevelWidth(9); }, true},
    {"BevelInner", [](Quillgrid& grid) { grid.SetBevelInner(qgbiFlat); }, true},
    {"BevelOuter", [](Quillgrid& grid) { grid.SetBevelOuter(qgboFlat); }, true},
    {"ShowCaption", [](Quillgrid& grid) { grid.SetShowCaption(true); }, true},
    {"ShowCloseBox", [](Quillgrid& grid) { grid.SetShowCloseBox(false); }, true},
    {"ShowMenuBox", [](Quillgrid& grid) { grid.SetShowMenuBox(false); }, true},
    {"ShowGroupBox", [](Quillgrid& grid) { grid.SetShowGroupBox(true); }, true},
    {"ShowTips", [](Quillgrid& grid) { grid.SetShowTips(true); }, true},
    {"Grouped", [](Quillgrid& grid) { grid.SetGrouped(true); }, true},
    {"Sorted", [](Quillgrid& grid) { grid.SetSorted(true); }, true},
    {"AutoHolidays", [](Quillgrid& grid) { grid.SetAutoHolidays(qgahdAustria); }, false},
    {"AllowHoliday", [](Quillgrid& grid) { grid.SetAllowHoliday(false); }, false},
    {"AllowSaturday", [](Quillgrid& grid) { grid.SetAllowSaturday(false); }, false},
    {"AllowSunday", [](Quillgrid& grid) { grid.SetAllowSunday(false); }, false},
    {"FirstDayOfWeek", [](Quillgrid& grid) { grid.SetFirstDayOfWeek(qgdwMonday); }, false},
    {"FirstWeekOfYear", [](Quillgrid& grid) { grid.SetFirstWeekOfYear(qgfwFirstJan1); }, false},
    {"WorkHoliday", [](Quillgrid& grid) { grid.SetWorkHoliday(true); }, false},
    {"WorkSaturday", [](Quillgrid& grid) { grid.SetWorkSaturday(true); }, false},
    {"WorkSunday", [](Quillgrid& grid) { grid.SetWorkSunday(true); }, false},
};

TEST(Settings, SettersStoreReportAndRepaintAtDesignTimeOnly) {
    static_assert(std::size(Setters) == 54);
    for (const SetterRow& row : Setters) {
        SCOPED_TRACE(row.Key);
        HeadlessHost run;
        const auto before = Saved(*run.Grid);
        run.Surface.Invalid.clear();
        row.Set(*run.Grid);
        EXPECT_THAT(run.Site.TakeReported(), ElementsAre(row.Key));
        EXPECT_NE(Saved(*run.Grid), before);
        EXPECT_THAT(run.Surface.Invalid, IsEmpty());

        HeadlessHost design({300, 200}, "de-DE", false);
        design.Surface.Invalid.clear();
        row.Set(*design.Grid);
        EXPECT_THAT(design.Site.Reported, ElementsAre(row.Key));
        EXPECT_EQ(!design.Surface.Invalid.empty(), row.Repaints);
    }
}

TEST(Settings, ComparingSettersAreSilentAboutWhatIsThereAlready) {
    HeadlessHost host;
    host.Grid->SetAlignment(qgalLeftJustify);
    host.Grid->SetStyle(qgstPropertyList);
    host.Grid->SetBorderStyle(qgbsSunken);
    EXPECT_THAT(host.Site.Reported, IsEmpty());
    host.Grid->SetBevelInner(qgbiNone);
    EXPECT_THAT(host.Site.Reported, ElementsAre("BevelInner"));
}

TEST(Settings, LabelWidthIsInUnitsOfTheContainer) {
    HeadlessHost host;
    host.Site.UnitsPerPixel = 15;
    host.Grid->SetLabelWidth(1500);
    MemoryBag bag;
    host.Grid->WriteProperties(bag);
    EXPECT_EQ(bag.Find("LabelWidth")->Value, Variant(100));
    EXPECT_EQ(host.Grid->LabelWidth(), 1500);
    EXPECT_EQ(host.Grid->Properties().Item("labelwidth")->Value(), Variant(1500));
    host.Grid->SetLabelWidth(-20);
    EXPECT_EQ(host.Grid->LabelWidth(), 0);
    host.Site.UnitsPerPixel = 0;
    host.Grid->SetLabelWidth(1);
    EXPECT_EQ(host.Grid->LabelWidth(), 0);

    host.Site.TakeReported();
    host.Surface.Invalid.clear();
    host.Grid->AmbientChanged("Font");
    EXPECT_THAT(host.Site.Reported, IsEmpty());
    host.Grid->AmbientChanged("scaleUNITS");
    EXPECT_THAT(host.Site.Reported, ElementsAre("LabelWidth"));
    EXPECT_FALSE(host.Surface.Invalid.empty());
}

std::vector<std::string> Captions(const Quillgrid& grid) {
    std::vector<std::string> captions;
    for (std::int32_t row = 1; row <= grid.RowCount(); ++row)
        captions.push_back(grid.RowCell(row)->Caption());
    return captions;
}

TEST(Samples, MakeRoomForTheFirstCellOfTheHost) {
    HeadlessHost host;
    host.Grid->SetCellCount(3);
    host.Grid->Refresh();
    EXPECT_THAT(Captions(*host.Grid), ElementsAre("Label1", "Label2", "Label3"));
    host.Grid->Cells().Item(2)->SetCaption("mine");
    host.Grid->Add({.Caption = Variant("new")});
    EXPECT_EQ(host.Grid->CellCount(), 2);
    host.Grid->Refresh();
    EXPECT_THAT(Captions(*host.Grid), ElementsAre("mine", "new"));

    HeadlessHost grouped;
    grouped.Grid->AddGroup({.Key = "g"});
    grouped.Grid->Refresh();
    EXPECT_THAT(Captions(*grouped.Grid), ElementsAre("g"));
}

TEST(Samples, EveryWayOfWritingMakesASampleTheHostsOwn) {
    using Write = void (*)(Cell&);
    const Write writes[] = {
        [](Cell& cell) { cell.Define({}); },         [](Cell& cell) { cell.SetValue(Variant("x")); },
        [](Cell& cell) { cell.SetVisible(true); },   [](Cell& cell) { cell.SetMax(Variant::Null()); },
        [](Cell& cell) { cell.SetForeColor(1); },    [](Cell& cell) { cell.SetFontBold(true); },
        [](Cell& cell) { cell.SetStyle(qgcsList); }, [](Cell& cell) { cell.SetAllowSunday(false); },
        [](Cell& cell) { cell.Listitems(); },        [](Cell& cell) { cell.Clear(); },
    };
    for (const Write& write : writes) {
        HeadlessHost host;
        write(*host.Grid->Cells().Item(1));
        host.Grid->Add({.Key = "new"});
        EXPECT_EQ(host.Grid->Cells().Count(), 2) << &write - writes;
    }
    // What the control does by itself is no touch.
    HeadlessHost host;
    host.Grid->Refresh();
    host.Grid->Undo();
    host.Grid->Update();
    host.Grid->SetLanguage(qglgEnglish);
    host.Grid->AddNew();
    host.EnterControl();
    host.Grid->Add({.Key = "new"});
    EXPECT_EQ(host.Grid->Cells().Count(), 1);
}

TEST(Samples, FillAnEmptyFormButNeverReplaceHiddenCells) {
    HeadlessHost host;
    host.Grid->Add({.Caption = Variant("hidden")})->SetVisible(false);
    host.Grid->Refresh();
    EXPECT_EQ(host.Grid->RowCount(), 0);
    EXPECT_EQ(host.Grid->Cells().Item(1)->Caption(), "hidden");
    host.Grid->Clear();
    EXPECT_EQ(host.Grid->RowCount(), 0);
    host.Grid->Refresh();
    EXPECT_THAT(Captions(*host.Grid), ElementsAre("Label1"));

    HeadlessHost design({300, 200}, "de-DE", false);
    design.Grid->Add({.Caption = Variant("mine")});
    design.Grid->Refresh();
    EXPECT_THAT(Captions(*design.Grid), ElementsAre("Label1", "Label2"));
}

TEST(Samples, ManyOfThemShowABusyPointer) {
    HeadlessHost host({300, 200}, "de-DE", false);
    host.Grid->SetCellCount(50);
    EXPECT_EQ(host.Surface.BusyTimes, 0);
    host.Grid->SetCellCount(5000);
    EXPECT_EQ(host.Grid->CellCount(), 1000);
    EXPECT_EQ(host.Surface.BusyTimes, 1);
    EXPECT_EQ(host.Surface.Pointer, MousePointer::Default);
    host.Grid->SetCellCount(-4);
    EXPECT_EQ(host.Grid->RowCount(), 1);
}

TEST(Lifecycle, NothingIsLaidOutBeforeItHasStarted) {
    HeadlessHost host;
    Quillgrid grid(GridPorts{.Window = host.Surface,
                             .Editor = host.Box,
                             .Bar = host.Bar,
                             .Container = host.Site,
                             .Metrics = host.Metrics,
                             .Time = host.Clock,
                             .Desktop = host.Theme,
                             .UserLocale = BuiltInLocale("de-DE")});
    host.Surface.Invalid.clear();
    grid.Add({.Caption = Variant("early")});
    grid.Resize();
    grid.Refresh();
    EXPECT_THAT(host.Surface.Invalid, IsEmpty());
    EXPECT_EQ(grid.RowCount(), 0);
    grid.InitProperties();
    EXPECT_THAT(Captions(grid), ElementsAre("Label1"));
}

TEST(Lifecycle, AfterItsEndAControlIsStillAndItsCellsAreFree) {
    HeadlessHost host;
    const auto cell = host.Grid->Add({.Key = "a", .Value = Variant("x")});
    host.Grid->Refresh();
    host.EnterControl();
    auto& sheet = host.Grid->Properties();
    const auto caption = sheet.Item("Caption");
    host.RecordEvents();
    host.Grid->Terminate();
    host.Journal.Clear();
    host.Site.TakeReported();
    cell->SetValue(Variant("y"));
    EXPECT_EQ(cell->Text(), "y");
    EXPECT_EQ(cell->Properties(), nullptr);
    caption->SetValue(Variant("unheard"));
    host.Type("7");
    host.Grid->SetBackColor(3);
    host.Grid->Refresh();
    host.ResizeTo({50, 50});
    host.Paint();
    host.Grid->Terminate();
    EXPECT_THAT(host.Journal.Entries(), IsEmpty());
    EXPECT_THAT(host.Site.Reported, IsEmpty());
    EXPECT_EQ(host.Grid->Cells().Count(), 0);
    EXPECT_EQ(sheet.Count(), 0);
}

TEST(Surface, PicturesGoToTheWindowWithWhatTheHostLeftOutLeftOut) {
    HeadlessHost host;
    const Picture picture;
    host.Grid->PaintPicture(picture, {.Position = {3, 4}});
    host.Grid->PaintPicture(picture,
                            {.Position = {0, 0}, .Width = 8, .SourceTop = 2, .Operation = 0x008800C6});
    host.Grid->hdc().Fill({1, 1, 2, 2}, 5);
    EXPECT_THAT(host.Surface.Drawn.Calls(),
                ElementsAre("picture 3,4", "picture 0,0 width=8 top=2 operation=8913094", ::testing::_));
    host.Grid->About();
    ASSERT_EQ(host.Site.Abouts.size(), 1U);
    EXPECT_EQ(host.Site.Abouts[0].Name, "Quillgrid");
    EXPECT_FALSE(host.Site.Abouts[0].Version.empty());
}

TEST(Surface, ValidStopsAtAnErrorAndChangedClearsIt) {
    HeadlessHost host;
    host.Grid->Clear();
    EXPECT_TRUE(host.Grid->Valid());
    host.Grid->Add({.Key = "a"});
    host.Grid->Refresh();
    host.Grid->Cell()->Properties()->Item("ErrorCode")->SetValue(Variant(20001));
    EXPECT_FALSE(host.Grid->Valid());
    host.Surface.Invalid.clear();
    host.Grid->SetChanged(true);
    EXPECT_TRUE(host.Grid->Valid());
    EXPECT_TRUE(host.Grid->Changed());
    EXPECT_THAT(host.Surface.Invalid, IsEmpty());
}

TEST(Settings, SettersNormaliseLimitAndRefuse) {
    HeadlessHost host;
    Quillgrid& grid = *host.Grid;
    grid.SetNumSeparators("");
    EXPECT_EQ(grid.NumSeparators(), ".,");
    grid.SetNumSeparators(";");
    EXPECT_EQ(grid.NumSeparators(), ".,;");
    grid.SetTimeSeparators(".");
    EXPECT_EQ(grid.TimeSeparators(), ":.");
    grid.SetDateSeparators("-");
    EXPECT_EQ(grid.DateSeparators(), "./-");
    grid.SetBorderWidth(-5);
    grid.SetBevelWidth(500);
    EXPECT_EQ(grid.BorderWidth(), 0);
    EXPECT_EQ(grid.BevelWidth(), 99);
    grid.SetAlignment(qgalCenter);
    EXPECT_EQ(grid.Alignment(), qgalRightJustify);
    try {
        grid.SetStyle(static_cast<StyleConstants>(2));
        FAIL() << "an unknown style was taken";
    } catch (const ControlError& error) {
        EXPECT_EQ(error.Number(), 0x80044E83U);
        EXPECT_EQ(error.Source(), "Quillgrid: Style Method.Quillgrid");
    }
    EXPECT_EQ(grid.Style(), qgstPropertyList);
}

TEST(Settings, AddRefusesATakenKeyAndEndsSilent) {
    HeadlessHost host;
    host.Grid->Add({.Key = "a"});
    host.Grid->SetSilent(true);
    try {
        host.Grid->Add({.Key = "A"});
        FAIL() << "a second cell took the key";
    } catch (const ControlError& error) {
        EXPECT_EQ(error.Code(), qgerrUserDefined);
        EXPECT_EQ(error.Source(), "Quillgrid.add method.Quillgrid");
    }
    EXPECT_EQ(host.Grid->Cells().Count(), 1);
    EXPECT_FALSE(host.Grid->Silent());
}

TEST(Settings, ErrorMessageKnowsTheStringTableAndNothingElse) {
    const HeadlessHost host;
    EXPECT_EQ(host.Grid->ErrorMessage(20010), "Eingabe erforderlich");
    EXPECT_EQ(host.Grid->ErrorMessage(21010), "Input required");
    EXPECT_EQ(host.Grid->ErrorMessage(10001), "ja");
    for (const std::int32_t missing : {0, -1, 20012, 21011, std::numeric_limits<std::int32_t>::max()}) {
        try {
            host.Grid->ErrorMessage(missing);
            FAIL() << missing << " has no text";
        } catch (const ControlError& error) {
            EXPECT_EQ(error.Code(), qgerrUserDefined);
            EXPECT_EQ(error.Source(), "Quillgrid.ErrorMessage Method.Quillgrid");
        }
    }
}

TEST(Settings, LanguageRefillsListsAndKeepsValues) {
    HeadlessHost host;
    const auto flag = host.Grid->Add({.Key = "f", .Value = Variant(false), .CellTemplate = qgctboolean});
    const auto colour = host.Grid->Add({.Key = "c", .Value = Variant(0), .CellTemplate = qgctColor});
    EXPECT_EQ(flag->Text(), "nein");
    host.Grid->SetLanguage(qglgEnglish);
    EXPECT_EQ(flag->Text(), "no");
    EXPECT_EQ(flag->Listitems().Item(1)->Text(), "yes");
    host.Grid->SetLanguage(qglgFrench);
    EXPECT_EQ(colour->Text(), "100");
    EXPECT_FALSE(host.Grid->Changed());
}

TEST(Settings, ChangedUndoAndUpdateWorkOnAllCells) {
    HeadlessHost host;
    const auto cell = host.Grid->Add({.Key = "a", .Value = Variant("old")});
    host.Grid->Refresh();
    cell->SetValue(Variant("new"));
    EXPECT_TRUE(host.Grid->Changed());
    host.Grid->Undo();
    EXPECT_EQ(cell->Text(), "old");
    EXPECT_EQ(host.Box.Text(), "old");
    cell->SetValue(Variant("new"));
    host.Grid->Update();
    EXPECT_FALSE(host.Grid->Changed());
    host.Grid->Undo();
    EXPECT_EQ(cell->Text(), "new");
}

} // namespace
} // namespace quillgrid
