// Property sheets and records: the control and its cells by name.
#include "quillgrid/cells/CellProperties.h"
#include "quillgrid/cells/OwnerServices.h"
#include "quillgrid/grid/GridPropertyTable.h"
#include "quillgrid/hosts/headless/HeadlessHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

namespace quillgrid {
namespace {

using headless::HeadlessHost;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MapRecord : public Record {
public:
    MapRecord(std::initializer_list<std::pair<const std::string, Variant>> fields) : fields_(fields) {}
    std::optional<Variant> Field(std::string_view name) const override {
        for (const auto& [key, value] : fields_) {
            if (EqualIgnoreCase(key, name)) return value;
        }
        return std::nullopt;
    }

private:
    std::map<std::string, Variant> fields_;
};

std::string Names(const Properties& sheet) {
    std::string names;
    for (const auto& item : sheet)
        names += item->Key() + " ";
    return names;
}

/// The code and the source of the error that a deed raises, "" when it raises none.
template <typename Deed>
std::string ErrorOf(Deed deed) {
    try {
        deed();
    } catch (const ControlError& error) {
        return std::to_string(error.Code()) + " " + error.Source();
    }
    return "";
}

const char* const Unfit = "20099 Property:Value Property Let.Quillgrid";

class SheetTest : public ::testing::Test {
protected:
    HeadlessHost Host;
    Quillgrid& Grid = *Host.Grid;
    Properties& Sheet = Grid.Properties();

    std::shared_ptr<Cell> AddCell(const char* key, const char* value = "") {
        auto cell = Grid.Add({.Key = key, .Caption = Variant(key), .Value = Variant(value)});
        Grid.Refresh();
        return cell;
    }
};

TEST_F(SheetTest, ListsTheControlAndItsCells) {
    EXPECT_EQ(
        Names(Sheet),
        "Alignment AllowEnter AllowEscape AllowHoliday AllowSaturday AllowSunday AutoHolidays AllowWrap "
        "Appearance BackColor BevelInner BevelOuter BevelWidth BorderStyle BorderWidth Caption "
        "CellBackColor CellBackColorDisabled CellCount CellForeColor CellForeColorDisabled "
        "CellForeColorError DateSeparators FillColor FirstDayOfWeek FirstWeekOfYear Gridcolor Grouped "
        "GroupBoxColor LabelBackColor LabelBackColorFocus LabelForeColor LabelForeColorFocus LabelWidth "
        "Language NumSeparators PasswordChar ShowCaption ShowCloseBox ShowGroupBox ShowMenuBox ShowTips "
        "Sorted Style TimeSeparators TooltipText UserLevel UseSystemColors WorkHoliday WorkSaturday "
        "WorkSunday ");
    EXPECT_EQ(Sheet.Count(), 51);
    const auto cells = Grid.Cell()->Properties();
    EXPECT_EQ(
        Names(*cells),
        "Alignment AllowEmpty Button Caption CausesValidation Changed CharCase Charlist DataVisible "
        "Default Enabled ErrorCode FillColor FontBold FontItalic ForeColor ForeignField ForeignIndex "
        "ForeignKey ForeignSource Group HelpContextID Index Key Listimage ListIndex Locked Max MaxLength "
        "Min RecordSource ShowPercent Step Style Template ToolTipText UndoValue Unit "
        "UserLevelDataVisible UserLevelEnabled UserLevelVisible ValidationRule Value Visible "
        "WhatsThisHelpID ");
    EXPECT_EQ(cells->Count(), 45);
    EXPECT_EQ(&Grid.Properties(), &Sheet);
    EXPECT_EQ(Grid.Add({})->Properties(), cells);
}

TEST_F(SheetTest, ReachesPropertiesByNameInAnyCase) {
    Sheet.Item("Caption")->SetValue(Variant("Form"));
    EXPECT_EQ(Grid.Caption(), "Form");
    Grid.SetCaption("Other");
    EXPECT_EQ(Sheet.Item("cAPTION")->Value(), Variant("Other"));
    Sheet.Item("BackColor")->SetValue(Variant(4278190335.0));
    EXPECT_EQ(Grid.BackColor(), 0xFF0000FFU);
    EXPECT_EQ(Sheet.Item("BackColor")->Value(), Variant(static_cast<std::int32_t>(0xFF0000FFU)));
    Sheet.Item("Sorted")->SetValue(Variant("wahr"));
    EXPECT_TRUE(Grid.Sorted());
    Sheet.Item("BevelWidth")->SetValue(Variant("1.000"));
    EXPECT_EQ(Grid.BevelWidth(), 99) << "limited as by its setter";
    Sheet.Item("AllowWrap")->SetValue(Variant());
    EXPECT_FALSE(Grid.AllowWrap());
}

// Every line must lead to a property of its own: what was written to one shows in no other.
TEST_F(SheetTest, WritesAndReadsAllFiftyOne) {
    for (const auto& item : Sheet) {
        const std::string name = item->Key();
        if (name == "AutoHolidays" || name == "CellCount") continue;
        std::vector<Variant> before;
        for (const auto& other : Sheet)
            before.push_back(Sheet.Item(other->Key())->Value());
        const Variant old = Sheet.Item(name)->Value();
        Variant fresh = Variant("#x");
        if (const auto* flag = old.Get<bool>()) fresh = Variant(!*flag);
        if (const auto* number = old.Get<std::int32_t>()) fresh = Variant(*number == 0 ? 1 : 0);
        Sheet.Item(name)->SetValue(fresh);
        for (std::size_t i = 0; i < before.size(); ++i) {
            const std::string other = Sheet.At(i + 1)->Key();
            const Variant now = Sheet.Item(other)->Value();
            if (other == name) {
                EXPECT_FALSE(now == before[i]) << name;
            } else {
                EXPECT_EQ(now.ToPlainText(), before[i].ToPlainText()) << other << " after " << name;
            }
        }
    }
}

TEST_F(SheetTest, AutoHolidaysIsWrittenButNeverAsked) {
    EXPECT_TRUE(Sheet.Item("AutoHolidays")->Value().IsNull());
    Sheet.Item("AutoHolidays")->SetValue(Variant(2));
    EXPECT_EQ(Grid.AutoHolidays(), qgahdAustria);
    Grid.SetAutoHolidays(qgahdNone);
    EXPECT_EQ(Sheet.Item("AutoHolidays")->Value(), Variant(2));
}

TEST_F(SheetTest, HearsOnlyTheItemFetchedLast) {
    int fetched = 0;
    const auto listening = Sheet.SelChange.Connect([&](Property&) { ++fetched; });
    for (const auto& item : Sheet)
        EXPECT_TRUE(item->Value().IsNull()) << item->Key();
    EXPECT_EQ(fetched, 0);
    const auto caption = Sheet.Item("Caption");
    const auto tooltip = Sheet.Item("TooltipText");
    EXPECT_EQ(fetched, 2);
    caption->SetValue(Variant("unheard"));
    tooltip->SetValue(Variant("heard"));
    EXPECT_EQ(Grid.Caption(), "Quillgrid1");
    EXPECT_EQ(caption->Value(), Variant("unheard"));
    EXPECT_EQ(Grid.TooltipText(), "heard");
}

TEST_F(SheetTest, RefusesWhatCannotBeConvertedAndKeepsBothValues) {
    const auto width = Sheet.Item("BorderWidth");
    EXPECT_EQ(ErrorOf([&] { width->SetValue(Variant("wide")); }), Unfit);
    EXPECT_EQ(ErrorOf([&] { width->SetValue(Variant::Null()); }), Unfit);
    EXPECT_EQ(ErrorOf([&] { width->SetValue(Variant(1e18)); }), Unfit);
    EXPECT_EQ(Grid.BorderWidth(), 4);
    EXPECT_EQ(width->Value(), Variant(4));
    EXPECT_EQ(ErrorOf([&] { Sheet.Item("Style")->SetValue(Variant(5)); }),
              "20099 Quillgrid: Style Method.Quillgrid");
    EXPECT_EQ(ErrorOf([&] { Sheet.Item("Caption")->SetValue(Variant::Null()); }), Unfit);
    EXPECT_EQ(ErrorOf([&] { Sheet.Item("Nothing"); }), "20092 Properties.Item Property Get.Quillgrid");
}

TEST_F(SheetTest, AddedItemsOfUnknownNamesOnlyStore) {
    const auto own = Sheet.Add({.Key = "Mine", .Description = "of the host"});
    EXPECT_EQ(own->Index(), 52);
    EXPECT_TRUE(Sheet.Item("Mine")->Value().IsNull());
    Sheet.Item("Mine")->SetValue(Variant(5));
    EXPECT_EQ(Sheet.Item(52)->Value(), Variant(5));
}

TEST_F(SheetTest, CellSheetActsOnTheCurrentCellWhicheverCellWasAsked) {
    AddCell("a");
    const auto second = AddCell("b");
    second->Properties()->Item("Caption")->SetValue(Variant("first"));
    EXPECT_EQ(Grid.Cells().Item("a")->Caption(), "first");
    EXPECT_EQ(second->Caption(), "b");
    Host.EnterControl();
    second->SetFocus();
    EXPECT_EQ(second->Properties()->Item("Key")->Value(), Variant("b"));
    second->Properties()->Item("Key")->SetValue(Variant("other"));
    EXPECT_EQ(second->Key(), "b");
}

TEST_F(SheetTest, CellSheetWritesWhatCodeCannotAndKnowsUnlistedNames) {
    const auto cell = AddCell("a", "7");
    const auto sheet = cell->Properties();
    sheet->Item("Template")->SetValue(Variant(4));
    EXPECT_EQ(cell->Template(), qgctDate);
    EXPECT_EQ(cell->ValidationRule(), qgvrNone) << "the number only";
    sheet->Item("UndoValue")->SetValue(Variant("old"));
    sheet->Item("Changed")->SetValue(Variant(true));
    cell->Undo();
    EXPECT_EQ(cell->Text(), "old");
    sheet->Item("Index")->SetValue(Variant(9));
    EXPECT_EQ(cell->Index(), 9);
    EXPECT_TRUE(sheet->Item("Step")->Value().IsNull());
    sheet->Item("Step")->SetValue(Variant(3));
    EXPECT_EQ(sheet->Item("Step")->Value(), Variant(3));

    sheet->Add({.Key = "format"});
    sheet->Add({.Key = "INCREMENT"});
    sheet->Item("Format")->SetValue(Variant("0.00"));
    sheet->Item("Increment")->SetValue(Variant("2,5"));
    EXPECT_EQ(cell->Format(), "0.00");
    EXPECT_EQ(cell->Increment(), *Currency::FromDouble(2.5));
    EXPECT_EQ(ErrorOf([&] { sheet->Item("Max")->SetValue(Variant::Null()); }), "");
    EXPECT_EQ(ErrorOf([&] { sheet->Item("MaxLength")->SetValue(Variant("many")); }), Unfit);
}

TEST_F(SheetTest, WithoutACurrentCellReadsGiveNullAndWritesGoNowhere) {
    const auto sheet = Grid.Cell()->Properties();
    Grid.Clear();
    ASSERT_EQ(Grid.Cell(), nullptr);
    EXPECT_TRUE(sheet->Item("Caption")->Value().IsNull());
    EXPECT_EQ(ErrorOf([&] { sheet->Item("MaxLength")->SetValue(Variant("many")); }), "");
}

TEST(PropertyCollection, InsertsNumbersAndTells) {
    const auto sheet = std::make_shared<Properties>();
    std::string told;
    const auto listening = sheet->SelChange.Connect(
        [&](Property& item) { told += item.Key() + std::to_string(item.Index()) + " "; });
    sheet->Add({.Key = "a", .Value = Variant(1)});
    sheet->Add({.Index = 7, .Key = "b"});
    EXPECT_EQ(told, "");
    EXPECT_EQ(sheet->Add({.Index = 1, .Key = "c", .Description = "new"})->Index(), 1);
    EXPECT_EQ(told, "0 a1 b2 ") << "each is fetched before it has its number, the new one before its key";
    EXPECT_EQ(sheet->Item("A")->Index(), 2);
    told.clear();
    EXPECT_EQ(ErrorOf([&] { sheet->Add({.Key = "B"}); }), "20093 Properties.Add Method.Quillgrid");
    EXPECT_EQ(ErrorOf([&] { sheet->Remove("none"); }), "20092 Properties.Remove Method.Quillgrid");
    EXPECT_EQ(sheet->Remove("c"), 2);
    EXPECT_EQ(told, "a2 b3 ");
    EXPECT_EQ(sheet->At(1)->Value(), Variant(1));
    sheet->Clear();
    EXPECT_EQ(sheet->Count(), 0);
}

TEST(PropertyCollection, ListenersMayChangeWhatIsWrittenAndRead) {
    const auto sheet = std::make_shared<Properties>();
    const auto item = sheet->Add({.Key = "a"});
    EXPECT_TRUE(item->Value().IsNull());
    auto writing = item->Changed.Connect(
        [](const std::string& name, Variant& value) { value = Variant(name + value.ToPlainText()); });
    item->SetValue(Variant(5));
    EXPECT_EQ(item->Value(), Variant("a5"));
    const auto reading =
        item->QueryValue.Connect([](const std::string&, Variant& value) { value = Variant(7); });
    EXPECT_EQ(item->Value(), Variant(7));
}

TEST(PropertyCollection, ListenersMayTakeTheSheetApart) {
    auto sheet = std::make_shared<Properties>();
    for (const char* key : {"a", "b", "c"})
        sheet->Add({.Key = key});
    sheet->SelChange.Listen([&](Property& item) {
        if (!sheet) return;
        if (item.Key() == "b") return sheet.reset();
        sheet->Remove(1);
    });
    const auto raw = sheet.get();
    raw->Remove(1);
    EXPECT_EQ(sheet, nullptr);
}

TEST(Records, DictionaryConfiguresTheCurrentCell) {
    HeadlessHost host;
    Quillgrid& grid = *host.Grid;
    const auto cell = grid.Add({.Key = "price", .Value = Variant("old")});
    grid.Refresh();
    grid.SetSilent(true);
    const MapRecord row{{"CAPTION", Variant("Price")},
                        {"validationrule", Variant(2)},
                        {"Max", Variant(100)},
                        {"MaxLength", Variant("not a number")},
                        {"Locked", Variant(std::int16_t{1})},
                        {"Format", Variant("passed over")},
                        {"Unit", Variant::Null()},
                        {"Value", Variant(12.5)}};
    grid.Add({.Key = "other"})->DefineFromDataDictionary(row);
    EXPECT_FALSE(grid.Silent());
    EXPECT_EQ(cell->Caption(), "Price");
    EXPECT_EQ(cell->ValidationRule(), qgvrCurrency);
    EXPECT_EQ(cell->Max(), Variant(100));
    EXPECT_EQ(cell->MaxLength(), 50);
    EXPECT_TRUE(cell->Locked());
    EXPECT_EQ(cell->Format(), "");
    EXPECT_EQ(cell->Value(), Variant(*Currency::FromDouble(12.5)));
}

TEST(Records, DictionaryConfiguresACellWithoutARowAndDisturbsNobody) {
    HeadlessHost host;
    Quillgrid& grid = *host.Grid;
    const auto first = grid.Add({.Key = "first", .Caption = Variant("1")});
    const auto hidden = grid.Add({.Key = "hidden"});
    hidden->SetVisible(false);
    grid.Refresh();
    host.RecordEvents();
    host.EnterControl();
    host.Type("typed");
    host.LeaveControl();
    host.Journal.Clear();
    {
        const CurrentCellScope current(*hidden);
        EXPECT_EQ(grid.Cell(), hidden.get());
        hidden->DefineFromDataDictionary(MapRecord{{"Caption", Variant("Secret")}, {"Value", Variant("x")}});
    }
    EXPECT_THAT(host.Journal.Take(), IsEmpty());
    EXPECT_EQ(grid.Cell(), first.get());
    EXPECT_EQ(host.Focus, headless::FocusPlace::Outside);
    EXPECT_EQ(hidden->Caption() + hidden->Text() + first->Caption() + first->Text(), "Secretx1typed");
    {
        const CurrentCellScope gone(*hidden);
        grid.Cells().Remove("hidden");
        EXPECT_EQ(grid.Cell(), first.get());
    }
    const CurrentCellScope outlived(*first);
    host.Grid.reset();
}

TEST(Records, LoadOnlyWhatHasAFieldAndEndAudible) {
    HeadlessHost host;
    Quillgrid& grid = *host.Grid;
    const auto name = grid.Add({.Key = "name", .Value = Variant("before")});
    const auto born = grid.Add({.Key = "born", .Value = Variant("1.2.2003"), .CellTemplate = qgctDate});
    grid.Add({.Value = Variant("no key")});
    grid.Refresh();
    grid.SetSilent(true);
    host.RecordEvents();
    host.EnterControl();
    host.Type("typed");
    host.Journal.Clear();
    grid.LoadRecord(MapRecord{{"NAME", Variant("after")}, {"", Variant("x")}});
    EXPECT_FALSE(grid.Silent());
    EXPECT_EQ(name->Text(), "after");
    EXPECT_TRUE(name->Changed());
    EXPECT_EQ(host.Box.Text(), "after");
    EXPECT_EQ(born->Text(), "01.02.2003");
    grid.LoadRecord(MapRecord{{"name", Variant::Null()}, {"born", Variant("no date")}});
    EXPECT_EQ(name->Text(), "");
    EXPECT_EQ(born->Text(), "01.02.2003");
    born->SetDefault(Variant("4.5.2006"));
    grid.AddNew();
    EXPECT_EQ(born->Text(), "04.05.2006");
    EXPECT_FALSE(grid.Changed());
}

} // namespace
} // namespace quillgrid
