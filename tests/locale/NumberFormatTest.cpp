#include "LocaleSamples.h"

#include "quillgrid/base/Decimal.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/locale/Format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <random>

namespace quillgrid {
namespace {

struct Case {
    Variant Value;
    std::string_view Pattern;
    std::string_view Locale;
    std::string_view Expected;
};

void Check(std::initializer_list<Case> cases) {
    for (const Case& test : cases) {
        EXPECT_EQ(Format(test.Value, test.Pattern, BuiltInLocale(test.Locale)), test.Expected)
            << test.Value.ToPlainText() << " by " << test.Pattern << " in " << test.Locale;
    }
}

Variant Money(std::int64_t scaled) {
    return Currency::FromScaled(scaled);
}

TEST(NamedNumberFormat, WritesMoneyWithTheMinusFirst) {
    Check({
        {-1234.5, "Currency", "de-DE", "-1.234,50 €"},
        {-1234.5, "Currency", "de-AT", "-€ 1.234,50"},
        {-1234.5, "Currency", "de-CH", "-CHF 1’234.50"},
        {-1234.5, "cURRENCY", "en-US", "-$1,234.50"},
        {1234567, "Currency", "en-GB", "£1,234,567.00"},
        {1234567, "Currency", "fr-FR", "1\u202F234\u202F567,00 €"},
        {999, "Currency", "it-IT", "999,00 €"},
        {0, "Currency", "es-ES", "0,00 €"},
        {-0.004, "Currency", "de-DE", "0,00 €"},
        {-0.005, "Currency", "de-DE", "-0,01 €"},
    });
}

TEST(NamedNumberFormat, KeepsEveryDigitOfMoney) {
    Check({
        {Money(std::numeric_limits<std::int64_t>::max()), "Currency", "en-US", "$922,337,203,685,477.58"},
        {Money(std::numeric_limits<std::int64_t>::min()), "General Number", "de-DE", "-922337203685477,5808"},
        {Money(90071992547409931), "General Number", "en-US", "9007199254740.9931"},
    });
}

TEST(NamedNumberFormat, RoundsTheShortestDigitsHalfAwayFromZero) {
    Check({
        {1.005, "Fixed", "en-US", "1.01"}, // in binary it is a little less than that
        {2.675, "Fixed", "en-US", "2.68"},
        {-2.675, "Standard", "de-DE", "-2,68"},
        {0.285, "Percent", "de-DE", "28,50%"},
        {0.00285, "Percent", "en-US", "0.29%"}, // 0.285 when scaled in binary loses the half
        {999.995, "Standard", "en-US", "1,000.00"},
        {0.005, "Fixed", "en-US", "0.01"},
        {0.0049999, "Fixed", "en-US", "0.00"},
        {-0.0, "Fixed", "en-US", "0.00"},
        {-1e-300, "Standard", "en-US", "0.00"},
        {9.995, "Scientific", "en-US", "1.00E+01"},
        {-0.00012345, "Scientific", "de-DE", "-1,23E-04"},
        {0, "Scientific", "de-DE", "0,00E+00"},
        {1e308, "Scientific", "de-DE", "1,00E+308"},
    });
}

TEST(NamedNumberFormat, GeneralNumberHasNoExponent) {
    Check({
        {1e21, "General Number", "de-DE", "1000000000000000000000"},
        {1e-7, "General Number", "de-DE", "0,0000001"},
        {0.1, "General Number", "de-DE", "0,1"},
        {-0.5, "", "de-DE", "-0,5"},
        {std::int16_t{-7}, "general number", "de-DE", "-7"},
        {std::numeric_limits<std::int32_t>::min(), "General Number", "de-DE", "-2147483648"},
    });
    const Locale& locale = BuiltInLocale("en-US");
    EXPECT_EQ(Format(1e308, "General Number", locale), "1" + std::string(308, '0'));
    EXPECT_EQ(Format(5e-324, "General Number", locale), "0." + std::string(323, '0') + "5");
}

TEST(NamedNumberFormat, WritesWhatIsNoFiniteNumber) {
    const double infinity = std::numeric_limits<double>::infinity();
    for (const auto pattern : {"Currency", "General Number", "", "0.00", "Percent", "Scientific"}) {
        Check({{std::nan(""), pattern, "de-DE", "NaN"},
               {infinity, pattern, "de-DE", "Inf"},
               {-infinity, pattern, "de-DE", "-Inf"}});
    }
}

TEST(NamedNumberFormat, TakesBooleansDatesAndTexts) {
    Check({
        {true, "General Number", "de-DE", "-1"},
        {false, "Fixed", "de-DE", "0,00"},
        {true, "", "de-DE", "Wahr"},
        {At(2026, 11, 16, 12), "General Number", "de-DE", "46342,5"},
        {"1.234,5", "Currency", "de-DE", "1.234,50 €"},
        {" 12 ", "Fixed", "en-US", "12.00"},
        {"1,234", "0", "en-US", "1234"},
        {"zwölf", "Currency", "de-DE", "zwölf"},
        {"1.5", "Currency", "de-DE", "1.5"},
        {"", "Fixed", "de-DE", ""},
        {Variant(), "Currency", "de-DE", ""},
        {Variant::Null(), "Fixed", "de-DE", ""},
        {std::make_shared<std::any>(1), "Fixed", "de-DE", ""},
    });
}

TEST(NamedNumberFormat, WritesBooleansInWords) {
    Check({
        {true, "Yes/No", "de-DE", "Ja"},
        {false, "yes/no", "es-ES", "No"},
        {0.5, "True/False", "de-DE", "Wahr"},
        {0, "True/False", "it-IT", "Falso"},
        {"-1", "On/Off", "de-DE", "Ein"},
        {"false", "On/Off", "en-US", "Off"},
        {"wahr", "Yes/No", "de-AT", "Ja"},
        {"vielleicht", "Yes/No", "de-DE", "vielleicht"},
        {Variant::Null(), "Yes/No", "de-DE", ""},
    });
}

// Rounds in whole ten-thousandths, which need no decimal point at all.
std::string FixedByIntegers(std::int64_t scaled) {
    const std::int64_t hundredths = (std::abs(scaled) + 50) / 100;
    const std::string digits = std::to_string(hundredths);
    const std::string padded = std::string(digits.size() < 3 ? 3 - digits.size() : 0, '0') + digits;
    return (scaled < 0 && hundredths > 0 ? "-" : "") + padded.substr(0, padded.size() - 2) + "." +
           padded.substr(padded.size() - 2);
}

TEST(NamedNumberFormat, RoundsLikeWholeNumbersDo) {
    std::mt19937_64 random(1);
    const Locale& locale = BuiltInLocale("en-US");
    for (int i = 0; i < 20'000; ++i) {
        const auto scaled = static_cast<std::int64_t>(random()) >> (14 + i % 50);
        const std::string expected = FixedByIntegers(scaled);
        ASSERT_EQ(Format(Money(scaled), "Fixed", locale), expected);
        if (std::abs(scaled) < 1'000'000'000'000'000) {
            ASSERT_EQ(Format(static_cast<double>(scaled) / 10'000, "0.00", locale), expected);
        }
    }
}

TEST(NamedNumberFormat, WhatIsShownReadsBackAsTheSameNumber) {
    std::mt19937_64 random(2);
    for (const auto name : AllLocaleNames) {
        const Locale& locale = BuiltInLocale(name);
        for (int i = 0; i < 3'000; ++i) {
            const std::uint64_t bits = random();
            double number = 0;
            std::memcpy(&number, &bits, sizeof number);
            if (!std::isfinite(number)) continue;
            const std::string text = Format(number, "General Number", locale);
            ASSERT_EQ(NumberFromText(text, locale), number) << text << name;
            const double amount = static_cast<double>(static_cast<std::int64_t>(bits) >> 20) / 100;
            ASSERT_EQ(NumberFromText(Format(amount, "Standard", locale), locale), amount) << name;
        }
    }
}

} // namespace
} // namespace quillgrid
