#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/CellLists.h"
#include "quillgrid/cells/Cells.h"
#include "tests/cells/ErrorExpectation.h"
#include "tests/cells/FakeOwner.h"

#include <gtest/gtest.h>

#include <sstream>

namespace quillgrid::test {

namespace {

/// A cell in which every field that a template may set holds something that no template sets: "~" or 9.
void Smudge(Cell& cell) {
    cell.SetFormat("~");
    cell.SetMaxLength(9);
    cell.SetAllowEmpty(false);
    cell.SetAlignment(static_cast<AlignmentConstants>(9));
    cell.SetButton(static_cast<ButtonStyleConstants>(9));
    cell.SetCharCase(static_cast<CharCaseConstants>(9));
    cell.SetCharlist("~");
    cell.SetUnit("~");
    cell.SetListImage("~");
    cell.SetMin(9);
    cell.SetMax(9);
    cell.SetDefault(9);
    cell.Listitems().Clear();
    cell.Listitems().Add({.Text = "~"});
}

/// rule format length empty | style image alignment button case | unit charlist entries
std::string Described(const Cell& cell) {
    std::ostringstream out;
    out << cell.ValidationRule() << " '" << cell.Format() << "' " << cell.MaxLength()
        << (cell.AllowEmpty() ? " e" : " -") << " | " << cell.Style() << " '"
        << cell.ListImage().ToPlainText() << "' " << cell.Alignment() << " " << cell.Button() << " "
        << cell.CharCase() << " | '" << cell.Unit() << "' " << cell.Charlist().size() << " "
        << cell.Listitems().Count();
    return out.str();
}

struct TemplateCase {
    CellTemplateConstants number;
    const char* described;
};

// The image of a list-style cell comes from its chosen entry.
const TemplateCase Table[] = {
    {qgctNone, "0 '' 50 e | 0 '~' 0 0 0 | '~' 1 1"},
    {qgctInteger, "1 '#0' 50 e | 0 '~' 1 0 0 | '~' 1 1"},
    {qgctCurrency, "2 'Currency' 15 e | 0 'money' 1 0 0 | '' 1 1"},
    {qgctEuro, "3 'Currency' 15 e | 0 'euro' 1 1 0 | 'EUR' 1 1"},
    {qgctDate, "5 'Short Date' 10 e | 0 '~' 2 3 0 | '~' 1 1"},
    {qgctTime, "6 'Long Time' 10 e | 0 '~' 2 0 0 | '~' 1 1"},
    {qgctPassword, "0 '~' 9 - | 0 '~' 9 9 9 | '~' 1 1"},
    {qgctboolean, "7 '~' 9 - | 1 'checked' 0 0 9 | '~' 1 2"},
    {qgctColor, "0 '~' 9 - | 1 '' 0 1 9 | '~' 1 16"},
    {qgctFile, "0 '~' 9 - | 0 'folder1' 9 4 9 | '~' 1 1"},
    {qgctSalutation, "0 '~' 9 - | 1 'woman' 0 1 9 | '~' 1 3"},
    {qgctPrinter, "0 '~' 9 - | 1 'printer' 9 1 9 | '~' 1 2"},
    {qgctImagelist, "0 '~' 9 - | 1 'b' 0 1 9 | '~' 1 3"},
    {qgctFont, "0 '~' 9 - | 1 'computer' 0 1 9 | '~' 1 4"},
    {qgctPhone, "0 '~' 9 - | 0 'phone' 9 6 9 | '~' 19 1"},
    {qgctlist, "0 '~' 9 - | 1 '~' 0 1 9 | '~' 1 0"},
    {qgctPhone2, "0 '~' 9 - | 0 'phone2' 9 6 9 | '~' 19 1"},
    {qgctwww, "0 '~' 9 - | 0 'world' 9 4 4 | '~' 42 1"},
    {qgctFax, "0 '~' 9 - | 0 'printer' 9 4 9 | '~' 19 1"},
    {qgctEmail, "0 '~' 9 - | 0 'email' 9 4 4 | '~' 39 1"},
    {qgctSpin, "2 '#0' 50 e | 0 '~' 1 2 0 | '~' 1 1"},
    {qgctPercent, "4 'Fixed' 15 e | 0 '~' 2 0 0 | '%' 1 1"},
    {qgctCombo, "0 '' 50 e | 0 '' 0 1 0 | '~' 1 1"},
    {qgctSysColor, "0 '~' 9 - | 1 '~' 0 1 9 | '~' 1 27"},
    {qgctNumber, "4 'General Number' 15 e | 0 '~' 1 5 0 | '' 1 1"},
    {qgctGroup, "0 '' 50 e | 2 '~' 0 0 0 | '~' 1 1"},
    {static_cast<CellTemplateConstants>(25), "0 '~' 9 - | 0 '~' 9 9 9 | '~' 1 1"},
    {static_cast<CellTemplateConstants>(-1), "0 '~' 9 - | 0 '~' 9 9 9 | '~' 1 1"},
};

class TemplateTest : public testing::Test {
protected:
    TemplateTest() {
        owner.Desk.Devices = {"Office", "Lobby"};
        owner.Desk.Screen = {"Zeta", "arial", "Beta"};
        owner.Desk.Printer = {"ARIAL", "Mono"};
        owner.Pictures.Images = {{"a", "first", {}}, {"b", 2, {}}, {"c", Variant(), {}}};
    }
    std::shared_ptr<Cell> Add(CellTemplateConstants number, std::optional<Variant> value = std::nullopt) {
        return cells.Add({.Caption = "c", .Value = std::move(value), .CellTemplate = number});
    }

    FakeOwner owner;
    Cells cells{&owner};
};

std::string Texts(const Cell& cell) {
    std::string all;
    for (const auto& item : cell.Listitems())
        all += item->Text() + " ";
    return all;
}

} // namespace

TEST_F(TemplateTest, SetsWhatItNamesAndNothingElse) {
    for (const auto language : {qglgDefault, qglgEnglish, qglgFrench, qglgItalian, qglgSpanish, qglgGerman}) {
        owner.Tongue = language;
        for (const auto& row : Table) {
            const auto cell = Add(qgctNone, 1);
            Smudge(*cell);
            // 1 is the value of an entry in most lists; the colours have 0 and the images 2.
            const auto value = row.number == qgctColor ? 0 : row.number == qgctImagelist ? 2 : 1;
            const bool yes = row.number == qgctboolean || row.number == qgctSalutation;
            cell->Define({.NewValue = yes ? Variant("1") : Variant(value), .NewCellTemplate = row.number});
            EXPECT_EQ(Described(*cell), row.described)
                << "template " << row.number << ", language " << language;
            EXPECT_EQ(cell->Template(), row.number);
            EXPECT_FALSE(cell->Changed());
            EXPECT_FALSE(owner.Quiet);
            EXPECT_EQ(CellAccess::UndoValue(*cell), CellAccess::StoredValue(*cell));
            if (row.number == qgctPercent) continue;
            EXPECT_TRUE(cell->Min().IsNull() && cell->Max().IsNull() && cell->Default().IsNull())
                << row.number;
        }
    }
}

TEST_F(TemplateTest, ListTextsAreInTheLanguageOrTheirNumbers) {
    struct Case {
        LanguageConstants language;
        const char *yesNo, *salutations, *firstColour, *lastSystemColour;
    };
    const Case table[] = {
        {qglgDefault, "ja nein ", "Frau Herr Firma ", "Schwarz", "Infohintergrund"},
        {qglgGerman, "ja nein ", "Frau Herr Firma ", "Schwarz", "Infohintergrund"},
        {qglgEnglish, "yes no ", "Mrs. Mr. Company ", "Black", "Info background"},
        {qglgFrench, "oui non ", "Madame Monsieur Entreprise ", "100", "226"},
        {qglgItalian, "si no ", "Signora Signore Company(?\?\?) ", "100", "226"},
        {qglgSpanish, "si no ", "Señora Señor Company(?\?\?) ", "100", "226"},
    };
    const auto yesNo = Add(qgctboolean, true);
    const auto salutation = Add(qgctSalutation, 2);
    const auto colour = Add(qgctColor, 0);
    salutation->Listitems().Item(3)->SetItemData("own");
    salutation->Listitems().Item(3)->SetText("Own");
    for (const auto& row : table) {
        owner.Tongue = row.language;
        EXPECT_EQ(Texts(*Add(qgctboolean)), row.yesNo);
        EXPECT_EQ(Texts(*Add(qgctSalutation)), row.salutations);
        EXPECT_EQ(Add(qgctColor)->Listitems().Item(1)->Text(), row.firstColour);
        EXPECT_EQ(Add(qgctSysColor)->Listitems().Item(27)->Text(), row.lastSystemColour);

        for (const auto& cell : {yesNo, salutation, colour})
            RefillLanguageTexts(*cell);
        EXPECT_EQ(Texts(*yesNo), row.yesNo);
        EXPECT_EQ(yesNo->Text(), yesNo->Listitems().Item(1)->Text());
        EXPECT_EQ(colour->Text(), row.firstColour);
        EXPECT_EQ(salutation->Listitems().Item(3)->Text(), "Own");
    }
}

TEST_F(TemplateTest, EntriesCarryTheirData) {
    const auto colour = Add(qgctColor, 0xFF0000);
    EXPECT_EQ(colour->ListIndex(), 10);
    EXPECT_EQ(colour->Text(), "Blue");
    const auto system = Add(qgctSysColor, static_cast<std::int32_t>(0x80000010U));
    EXPECT_EQ(system->ListIndex(), 17);
    system->SetListIndex(24); // its data stand twice in the list: the first entry wins
    EXPECT_EQ(system->ListIndex(), 17);
    EXPECT_EQ(system->Listitems().Item(27)->ItemData(), Variant(static_cast<std::int32_t>(0x80000018U)));
    const auto yes = Add(qgctboolean, true);
    EXPECT_EQ(yes->Value(), Variant(std::int16_t{-1}));
    EXPECT_EQ(CellAccess::StoredValue(*yes), Variant(true));
    const auto printer = Add(qgctPrinter, 1);
    EXPECT_EQ(printer->Text(), "Lobby");
    const auto image = Add(qgctImagelist, 3);
    EXPECT_EQ(Texts(*image), "first 2  ");
    EXPECT_EQ(image->ListImage(), Variant("c"));
    EXPECT_TRUE(image->Listitems().HasImages());
    EXPECT_FALSE(colour->Listitems().HasImages());
}

TEST_F(TemplateTest, ValuesThatATemplateChooses) {
    EXPECT_EQ(Add(qgctSalutation, 7)->Value(), Variant(std::int16_t{1}));
    EXPECT_EQ(Add(qgctSalutation, 2)->Value(), Variant(2));
    EXPECT_EQ(Add(qgctSalutation)->ListIndex(), 1);
    EXPECT_EQ(Add(qgctSalutation, "x")->ListIndex(), 1);
    EXPECT_EQ(Add(qgctboolean)->Text(), "no");
    EXPECT_EQ(Add(qgctGroup, "x")->Value(), Variant(""));

    const auto cell = Add(qgctNone, "before");
    cell->Define({.NewValue = "new", .NewCellTemplate = qgctCombo});
    EXPECT_EQ(cell->Value(), Variant("before"));
    EXPECT_EQ(cell->Caption(), "c");
    cell->Define({.NewCaption = 5, .NewCellTemplate = qgctPassword});
    EXPECT_EQ(cell->Value(), Variant("before"));
    EXPECT_EQ(cell->Caption(), "5");
    EXPECT_EQ(cell->Group(), "");
}

TEST_F(TemplateTest, PercentHasBoundsUnitAndBar) {
    const auto cell = Add(qgctPercent, 5);
    EXPECT_EQ(cell->Text(), "5.00 %");
    EXPECT_EQ(cell->PercentValue(), *Currency::FromInteger(5));
    EXPECT_EQ(cell->Min(), Variant(std::int16_t{0}));
    EXPECT_EQ(cell->Max(), Variant(std::int16_t{100}));
    EXPECT_EQ(cell->Default(), Variant(std::int16_t{0}));
    EXPECT_TRUE(cell->ShowPercent());
    EXPECT_EQ(cell->FillColor(), 0x445566U);
    owner.NewCells.FillColor = 1;
    EXPECT_EQ(cell->FillColor(), 0x445566U);
}

TEST_F(TemplateTest, LaterTemplateInheritsLeftovers) {
    const auto cell = Add(qgctCurrency, 5);
    cell->Define({.NewValue = "030/1", .NewCellTemplate = qgctPhone});
    EXPECT_EQ(cell->Format(), "Currency");
    EXPECT_EQ(cell->MaxLength(), 15);
    cell->Define({.NewValue = "letters", .NewCellTemplate = qgctFile});
    EXPECT_EQ(cell->Value(), Variant("030/1")); // the digits of the phone still filter
    cell->Define({.NewValue = 5, .NewCellTemplate = qgctEuro});
    cell->Define({.NewValue = 5, .NewCellTemplate = qgctInteger});
    EXPECT_EQ(cell->Text(), "5 EUR");
    cell->Clear();
    cell->Define({.NewValue = 5, .NewCellTemplate = qgctInteger});
    EXPECT_EQ(cell->Text(), "5");
}

TEST_F(TemplateTest, FontsAreMarkedAndSorted) {
    owner.TakeCalls();
    const auto cell = Add(qgctFont, "ignored");
    EXPECT_EQ(owner.TakeCalls(), (Calls{"busy", "ready", "order"}));
    EXPECT_EQ(Texts(*cell), "arial Beta Mono Zeta ");
    std::string images;
    for (const auto& item : cell->Listitems())
        images += item->ListImage().ToPlainText() + " ";
    EXPECT_EQ(images, "truetype computer printer computer ");
    EXPECT_EQ(cell->Listitems().Item(4)->ItemData(), Variant(3));

    owner.Desk.Screen = {"Mono", "mono"};
    owner.Desk.Printer = {"MONO"};
    const auto equal = Add(qgctFont);
    EXPECT_EQ(Texts(*equal), "Mono mono ");
    EXPECT_EQ(equal->Text(), "mono");

    owner.Running = false;
    const auto design = Add(qgctFont);
    EXPECT_EQ(Texts(*design), "Arial ");
    EXPECT_EQ(design->Listitems().Item(1)->ListImage(), Variant("truetype"));
    EXPECT_EQ(design->ListIndex(), -1);
}

} // namespace quillgrid::test
