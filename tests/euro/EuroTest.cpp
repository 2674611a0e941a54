#include "quillgrid/euro/QGEuro.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <set>

namespace quillgrid {
namespace {

std::string Converted(const char* amount, const char* from, const char* to) {
    const auto result = QGEuro().Convert(*Currency::FromDecimal(amount), from, to);
    return result ? result->ToText() : "nothing";
}

TEST(Euro, ConvertsByTheRateAndThroughThreeDecimalsOfEuro) {
    struct Case {
        const char* Amount;
        const char* From;
        const char* To;
        const char* Result;
    };
    for (const Case& expected : std::initializer_list<Case>{
             {"100", "EUR", "DEM", "195.58"},
             {"100", "dem", "eur", "51.13"},
             {"1", "EUR", "ITL", "1936"},   // halves of a lira are not paid
             {"-1", "EUR", "IEP", "-0.79"}, // 0.787564
             {"1", "FRF", "DEM", "0.3"},    // 0.152 euro; without the rounding there it would be 0.29816
             {"0.01", "ATS", "BEF", "0"},   // 0.001 euro
             {"0.05", "DEM", "ESP", "4"},   // 0.026 euro are 4.326
             {"0.0055", "EUR", "EUR", "0.0055"},
             {"0.005", "EUR", "BGN", "0.01"}, // 0.0097...
             {"1.005", "EUR", "GRD", "342"},  // 342.45
             {"1", "USD", "EUR", "nothing"},
             {"1", "EUR", "", "nothing"},
             {"922337203685477.5807", "EUR", "ITL", "nothing"},
             {"-922337203685477.5808", "DEM", "EUR", "nothing"},
             {"922337203685477.5807", "DEM", "EUR", "471583523969607.57"},
         })
        EXPECT_EQ(Converted(expected.Amount, expected.From, expected.To), expected.Result)
            << expected.Amount << expected.From << " " << expected.To;
}

/// The way by floating numbers may be off by the roundings only.
TEST(Euro, EveryPairAgreesWithFloatingArithmetic) {
    for (const EuroCurrency& from : EuroTable()) {
        for (const EuroCurrency& to : EuroTable()) {
            const auto result = QGEuro().Convert(*Currency::FromDecimal("1234567.89"), from.Code, to.Code);
            ASSERT_TRUE(result);
            const double exact = 1234567.89 / static_cast<double>(from.Rate) * static_cast<double>(to.Rate);
            const double rounding =
                0.0005 * static_cast<double>(to.Rate) / 1e6 + (to.Decimals == 0 ? 0.5 : 0.005) + 1e-6;
            EXPECT_LE(std::abs(result->ToDouble() - exact), rounding) << from.Code << " " << to.Code;
        }
    }
}

TEST(Euro, ListsWhatIsInUseInTheLanguageOfTheControl) {
    QGEuro euro;
    EXPECT_EQ(euro.Currencies().size(), 22U);
    EXPECT_EQ(euro.Currencies().front().Code, "EUR");
    EXPECT_EQ(euro.Symbol("eur"), "€");
    EXPECT_EQ(euro.Symbol("kg"), "");
    for (const auto& [language, country] :
         std::initializer_list<std::pair<LanguageConstants, const char*>>{{qglgDefault, "Deutschland"},
                                                                          {qglgEnglish, "Germany"},
                                                                          {qglgFrench, "Allemagne"},
                                                                          {qglgItalian, "Germania"},
                                                                          {qglgSpanish, "Alemania"}}) {
        euro.SetLanguage(language);
        EXPECT_EQ(euro.Currencies()[5].Country, country);
    }
    std::set<std::string_view> codes;
    for (const EuroCurrency& currency : EuroTable()) {
        codes.insert(currency.Code);
        for (std::size_t i = 0; i < EuroLanguages; ++i)
            EXPECT_FALSE(currency.Country[i].empty() || currency.Name[i].empty()) << currency.Code;
        if (currency.Code != "EUR") euro.SetInUse(currency.Code, currency.Code == "FRF");
    }
    EXPECT_EQ(codes.size(), EuroTable().size());
    ASSERT_EQ(euro.Currencies().size(), 2U);
    EXPECT_EQ(euro.Currencies()[1].Name, "Franco");
    EXPECT_TRUE(euro.Convert(Currency::FromScaled(10000), "EUR", "DEM")); // out of use, but no stranger
}

} // namespace
} // namespace quillgrid
