#include "quillgrid/cells/DisplayText.h"
#include "quillgrid/cells/BooleanInput.h"

#include "quillgrid/platform/CurrencyConverter.h"

#include <gtest/gtest.h>

#include <any>
#include <limits>

namespace quillgrid {
namespace {

struct FixedSymbols : CurrencyConverter {
    void SetLanguage(LanguageConstants) override {}
    std::string Symbol(std::string_view code) const override {
        if (code == "EUR") return "\u20AC";
        return code == "USD" ? "$" : "";
    }
};

std::string Show(const Variant& value, const DisplayRules& rules, const char* locale = "en-GB") {
    const FixedSymbols symbols;
    return DisplayText(value, rules, BuiltInLocale(locale), &symbols);
}

TEST(DisplayText, RulesHaveTheirOwnForm) {
    EXPECT_EQ(Show(1234, {.Rule = qgvrInteger}), "1234");
    EXPECT_EQ(Show(Currency::FromScaled(12345000), {.Rule = qgvrCurrency}), "1234.50");
    EXPECT_EQ(Show(Currency::FromScaled(12345000), {.Rule = qgvrEuro}, "de-DE"), "1234,50");
    EXPECT_EQ(Show(2.6, {.Rule = qgvrDouble}), "3");
    EXPECT_EQ(Show(DateTime{46342, 3600}, {.Rule = qgvrDate}, "de-DE"), "16.11.2026");
    EXPECT_EQ(Show(DateTime{0, 32'400}, {.Rule = qgvrTime}, "de-DE"), "09:00:00");
    EXPECT_EQ(Show("as it is", {.Rule = qgvrNone}), "as it is");
    EXPECT_EQ(Show(2.5, {.Rule = qgvrNone}, "de-DE"), "2,5");
    for (const auto rule : {qgvrNone, qgvrInteger, qgvrCurrency, qgvrDouble, qgvrDate, qgvrTime}) {
        EXPECT_EQ(Show(Variant::Null(), {.Rule = rule}), "") << rule;
    }
}

TEST(DisplayText, UnitsFollowTheFormattedValue) {
    EXPECT_EQ(Show(12.5, {qgvrDouble, "Fixed", "%"}), "12.50 %");
    EXPECT_EQ(Show(Variant::Null(), {qgvrDouble, "Fixed", "%"}), "") << "nothing to measure, no unit";
    EXPECT_EQ(Show(5, {qgvrInteger, "", "pieces"}), "5") << "the plain form of a rule has no unit";
}

TEST(DisplayText, MoneyShowsTheSymbolOfItsCurrency) {
    const Variant amount(Currency::FromScaled(-12345000));
    EXPECT_EQ(Show(amount, {qgvrEuro, "CURRENCY", "USD"}), "-$1,234.50");
    EXPECT_EQ(Show(amount, {qgvrEuro, "currency", "XXX"}), "-\u00A31,234.50")
        << "an unknown code keeps the symbol";
    EXPECT_EQ(Show(amount, {qgvrEuro, "Currency", ""}), "-\u00A31,234.50");
    EXPECT_EQ(DisplayText(amount, {qgvrEuro, "Currency", "EUR"}, BuiltInLocale("en-GB"), nullptr),
              "-\u00A31,234.50");
    Locale lettered = BuiltInLocale("en-GB");
    lettered.CurrencySymbol = "\u00C4k";
    const FixedSymbols symbols;
    EXPECT_EQ(DisplayText("12 \u00E4K \u00E4K", {qgvrNone, "Currency", "EUR"}, lettered, &symbols),
              "12 \u20AC \u00E4K");
    lettered.CurrencySymbol = "";
    EXPECT_EQ(DisplayText("twelve", {qgvrNone, "Currency", "EUR"}, lettered, &symbols), "twelve");
}

TEST(BooleanInput, WordsNumbersAndNothing) {
    const Locale& german = BuiltInLocale("de-DE");
    const auto read = [&](const Variant& value) { return BooleanFromInput(value, "an", "aus", german); };
    for (const Variant& yes : {Variant(true), Variant(-1), Variant(0.5), Variant(Currency::FromScaled(1)),
                               Variant("AN"), Variant("Ja"), Variant("yes"), Variant("OUI"), Variant(" si "),
                               Variant("true"), Variant("Wahr"), Variant("0,5"), Variant("-1")}) {
        EXPECT_EQ(read(yes), true) << yes.ToPlainText();
    }
    for (const Variant& no : {Variant(false), Variant(0), Variant(0.0), Variant("aus"), Variant("NEIN"),
                              Variant("no"), Variant("non"), Variant("False"), Variant("falsch"),
                              Variant("0"), Variant(""), Variant("   "), Variant(), Variant::Null()}) {
        EXPECT_EQ(read(no), false) << no.ToPlainText();
    }
    for (const Variant& neither :
         {Variant("maybe"), Variant("ja nein"), Variant("\xFF"), Variant(DateTime{1, 0}),
          Variant(std::numeric_limits<double>::quiet_NaN()), Variant(std::make_shared<std::any>(1))}) {
        EXPECT_EQ(read(neither), std::nullopt) << neither.ToPlainText();
    }
    EXPECT_EQ(BooleanFromInput("0", "0", "1", german), true) << "the cell's own words come first";
    EXPECT_EQ(BooleanFromInput("no", "No", "Yes", german), true);
}

} // namespace
} // namespace quillgrid
