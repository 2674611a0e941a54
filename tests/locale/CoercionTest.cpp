#include "LocaleSamples.h"

#include "quillgrid/locale/Coercion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace quillgrid {
namespace {

const Locale& German() {
    return BuiltInLocale("de-DE");
}

TEST(NumberFromText, ReadsNumbersOfTheLocale) {
    struct {
        std::string_view Text, Locale;
        std::optional<double> Number;
    } const cases[] = {
        {"1.234,5", "de-DE", 1234.5},
        {" -1234,5 ", "de-DE", -1234.5},
        {",5", "de-DE", 0.5},
        {"5,", "de-DE", 5.0},
        {"1,234,567.25", "en-US", 1234567.25},
        {"1'234.5", "de-CH", 1234.5},
        {"1’234.5", "de-CH", 1234.5},
        {"1 234,5", "fr-FR", 1234.5},
        {"1\u00A0234,5", "fr-FR", 1234.5},
        {"1\u202F234,5", "fr-FR", 1234.5},
        {"1,5E3", "de-DE", 1500.0},
        {"1.234e-2", "en-US", 0.01234},
        {"1.234E+2", "de-DE", 123400.0},
        {"0e999999999999999999999", "de-DE", 0.0},
        {"1e-999999999999999999999", "de-DE", 0.0},
        {"000,000e5", "de-DE", 0.0},
        {"1e308", "de-DE", 1e308},
        {"5e-324", "de-DE", 5e-324},
        {"1e309", "de-DE", std::nullopt},
        {"1e999999999999999999999", "de-DE", std::nullopt},
        {"1.5", "de-DE", std::nullopt},
        {"1234.567", "de-DE", std::nullopt},
        {"1.2345", "de-DE", std::nullopt},
        {".123", "de-DE", std::nullopt},
        {"1,2.345", "de-DE", std::nullopt},
        {"", "de-DE", std::nullopt},
        {"-", "de-DE", std::nullopt},
        {",", "de-DE", std::nullopt},
        {"--1", "de-DE", std::nullopt},
        {"1-", "de-DE", std::nullopt},
        {"e5", "de-DE", std::nullopt},
        {"1e", "de-DE", std::nullopt},
        {"1e+", "de-DE", std::nullopt},
        {"0x10", "de-DE", std::nullopt},
        {"nan", "de-DE", std::nullopt},
        {"1\xff", "de-DE", std::nullopt},
    };
    for (const auto& [text, locale, number] : cases) {
        EXPECT_EQ(NumberFromText(text, BuiltInLocale(locale)), number) << text;
    }
}

TEST(NumberFromText, TakesLongTexts) {
    const std::string ones(1'000'000, '1');
    EXPECT_EQ(NumberFromText(ones, German()), std::nullopt);
    EXPECT_EQ(NumberFromText("0," + ones, German()), 1.0 / 9);
    EXPECT_EQ(NumberFromText("0," + std::string(100'000, '0') + "1e100001", German()), 1.0);
    EXPECT_EQ(NumberFromText(std::string(1'000'000, '0'), German()), 0.0);
}

TEST(Coercion, ToLongRoundsHalfToEven) {
    struct {
        Variant Value;
        std::optional<std::int32_t> Number;
    } const cases[] = {
        {2.5, 2},
        {3.5, 4},
        {-2.5, -2},
        {"2,5", 2},
        {"3,5", 4},
        {"-3,5", -4},
        {"2,50000000000000000000000001", 3},
        {"0,49999999999999999999999999", 0},
        {",5", 0},
        {"2147483647,4", 2147483647},
        {"2147483647,5", std::nullopt},
        {"-2147483648,5", -2147483647 - 1},
        {"99999999999999999999999", std::nullopt},
        {Currency::FromScaled(25'000), 2},
        {Currency::FromScaled(std::numeric_limits<std::int64_t>::max()), std::nullopt},
        {3e9, std::nullopt},
        {std::nan(""), std::nullopt},
        {true, -1},
        {std::int16_t{-5}, -5},
        {At(2026, 11, 16), 46342},
        {"x", std::nullopt},
        {Variant(), std::nullopt},
        {Variant::Null(), std::nullopt},
        {std::make_shared<std::any>(1), std::nullopt},
    };
    for (const auto& [value, number] : cases)
        EXPECT_EQ(ToLong(value, German()), number) << value.ToPlainText();
}

TEST(Coercion, ToCurrencyReadsTextsInDecimal) {
    EXPECT_EQ(ToCurrency("922.337.203.685.477,5807", German()), Currency::FromScaled(INT64_MAX));
    EXPECT_EQ(ToCurrency("922337203685477,5808", German()), std::nullopt);
    EXPECT_EQ(ToCurrency("0,00005", German()), Currency::FromScaled(0));
    EXPECT_EQ(ToCurrency("1,5e3", German()), Currency::FromScaled(15'000'000));
    EXPECT_EQ(ToCurrency(1e300, German()), std::nullopt);
    EXPECT_EQ(ToCurrency(true, German()), Currency::FromScaled(-10'000));
    EXPECT_EQ(ToCurrency(Variant::Null(), German()), std::nullopt);
}

TEST(Coercion, ToDateTimeTakesSerialNumbersAndTexts) {
    struct {
        Variant Value;
        std::optional<DateTime> Date;
    } const cases[] = {
        {46342.25, At(2026, 11, 16, 6)},   {"16.11.2026 6:00", At(2026, 11, 16, 6)},
        {"46342,25", At(2026, 11, 16, 6)}, {-1.25, At(1899, 12, 29, 6)},
        {"12:00", DateTime{0, 43200}},     {1e9, std::nullopt},
        {std::nan(""), std::nullopt},      {"heute", std::nullopt},
        {Variant(), std::nullopt},
    };
    for (const auto& [value, date] : cases)
        EXPECT_EQ(ToDateTime(value, German()), date) << value.ToPlainText();
}

TEST(Coercion, ToBooleanKnowsTheWordsOfTheLocale) {
    struct {
        Variant Value;
        std::optional<bool> Boolean;
    } const cases[] = {
        {"true", true},
        {"WAHR", true},
        {" falsch ", false},
        {"False", false},
        {"0,0", false},
        {"-1", true},
        {0.1, true},
        {Currency::FromScaled(1), true},
        {"vrai", std::nullopt},
        {"", std::nullopt},
        {std::nan(""), std::nullopt},
        {Variant::Null(), std::nullopt},
        {DateTime{}, false},
    };
    for (const auto& [value, boolean] : cases)
        EXPECT_EQ(ToBoolean(value, German()), boolean) << value.ToPlainText();
    EXPECT_EQ(ToBoolean("vrai", BuiltInLocale("fr-FR")), true);
}

TEST(Coercion, ToTextWritesTheGeneralForms) {
    EXPECT_EQ(ToText(1234.5, German()), "1234,5");
    EXPECT_EQ(ToText(At(2026, 11, 16, 6), German()), "16.11.2026 06:00:00");
    EXPECT_EQ(ToText(false, German()), "Falsch");
    EXPECT_EQ(ToText("as it is", German()), "as it is");
    EXPECT_EQ(ToText(Variant::Null(), German()), "");
}

} // namespace
} // namespace quillgrid
