#include "quillgrid/cells/LanguageTexts.h"

#include "quillgrid/resources/StringTable.h"

#include <gtest/gtest.h>

#include <climits>
#include <string_view>
#include <utility>
#include <vector>

namespace quillgrid {
namespace {

TEST(StringTable, TextsStandUnderTheirNumbers) {
    const std::vector<std::pair<std::int32_t, std::string_view>> texts = {
        {10001, "ja"},
        {10002, "nein"},
        {10005, "Firma"},
        {11003, "Mrs."},
        {12001, "oui"},
        {12005, "Entreprise"},
        {13001, "si"},
        {13005, "Company(?\?\?)"},
        {14003, "Se\u00F1ora"},
        {14005, "Company(?\?\?)"},
        {11100, "Black"},
        {11115, "White"},
        {11200, "Scroll bars"},
        {11226, "Info background"},
        {10324, "Zahl"},
        {11324, "Zahl"},
        {11323, "System colour"},
        {20001, "Die eingegebene Zahl ist ung\u00FCltig"},
        {20005, "Die eingegebene Zahl ist zu gro\u00DF"},
        {20011, "Falsches Eingabeformat"},
        {20092, "Dieses Auflistungselement ist nicht vorhanden"},
        {20099, "Ung\u00FCltiger Eigenschaftswert"},
        {21010, "Input required"},
        {21091, "Unknown Error"},
        {21099, "Invalid Property Value"},
    };
    for (const auto& [id, text] : texts)
        EXPECT_EQ(StoredText(id), text) << id;
}

TEST(StringTable, GapsHaveNoText) {
    for (const std::int32_t id :
         {0,     -1,    INT_MIN, INT_MAX, 10000, 10006, 10099, 10116, 10227, 10325, 12100,
          13200, 14300, 20000,   20012,   20090, 20094, 20098, 20100, 21011, 21100}) {
        EXPECT_FALSE(StoredText(id)) << id;
    }
}

TEST(LanguageTexts, LookUpFallsBackToTheBareNumberThenToDigits) {
    EXPECT_EQ(LanguageBlock(qglgDefault), 10000);
    EXPECT_EQ(LanguageBlock(qglgSpanish), 14000);
    EXPECT_EQ(LanguageBlock(qglgGerman), 10000);
    EXPECT_EQ(LocalText(qglgGerman, 112), "Rot");
    EXPECT_EQ(LocalText(qglgDefault, 112), "Rot");
    EXPECT_EQ(LocalText(qglgEnglish, 112), "Red");
    EXPECT_EQ(LocalText(qglgFrench, 112), "112");
    EXPECT_EQ(LocalText(qglgEnglish, 20010), "Eingabe erforderlich");
    for (const std::int32_t unknown : {-1, 6, INT_MAX, INT_MIN}) {
        EXPECT_EQ(LocalText(static_cast<LanguageConstants>(unknown), 112), "112");
        EXPECT_EQ(LanguageBlock(static_cast<LanguageConstants>(unknown)), 10000);
    }
    EXPECT_EQ(LocalText(qglgItalian, INT_MAX), "2147483647");
    EXPECT_EQ(LocalText(qglgItalian, INT_MIN), "-2147483648");
}

TEST(LanguageTexts, ErrorsCarryNumberSourceAndText) {
    const ControlError error = RaiseControlError(20093, "Cells.Add Method");
    EXPECT_EQ(error.Number(), 0x80040000U + 20093U);
    EXPECT_EQ(error.Source(), "Cells.Add Method.Quillgrid");
    EXPECT_EQ(error.Description(), "Dieses Auflistungselement ist bereits vorhanden");
    EXPECT_EQ(RaiseControlError(20500, "x").Description(), "Unknown Error!");
    EXPECT_EQ(RaiseControlError(10001, "x").Description(), "ja")
        << "the first code that the table may answer";
    EXPECT_EQ(RaiseControlError(5, "x").Description(), "Application-defined or object-defined error");
    EXPECT_NE(RaiseControlError(382, "x").Description(), RaiseControlError(5, "x").Description());
}

} // namespace
} // namespace quillgrid
