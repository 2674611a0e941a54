#include "LocaleSamples.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace quillgrid {
namespace {

TEST(Locale, IsFoundByAnySpellingOfItsName) {
    struct {
        std::string_view Asked, Found;
        bool Exact;
    } const cases[] = {
        {"de-DE", "de-DE", true},     {"DE_at", "de-AT", true},        {"de_CH.UTF-8", "de-CH", true},
        {"EN-gb", "en-GB", true},     {"de_DE@euro", "de-DE", true},   {"fr-CA", "fr-FR", false},
        {"en", "en-US", false},       {"es_MX.UTF-8", "es-ES", false}, {"", "de-DE", false},
        {"C", "de-DE", false},        {"pl-PL", "de-DE", false},       {"deutsch", "de-DE", false},
        {"\xff\xfe", "de-DE", false},
    };
    for (const auto& [asked, found, exact] : cases) {
        EXPECT_EQ(BuiltInLocale(asked).Name, found) << asked;
        EXPECT_EQ(HasBuiltInLocale(asked), exact) << asked;
    }
}

TEST(Locale, EveryBuiltInOneIsComplete) {
    for (const auto name : AllLocaleNames) {
        const Locale& locale = BuiltInLocale(name);
        const auto missing = [](const std::string& text) { return text.empty(); };
        EXPECT_EQ(locale.Name, name);
        EXPECT_TRUE(std::none_of(locale.MonthNames.begin(), locale.MonthNames.end(), missing)) << name;
        EXPECT_TRUE(std::none_of(locale.ShortMonthNames.begin(), locale.ShortMonthNames.end(), missing))
            << name;
        EXPECT_TRUE(std::none_of(locale.DayNames.begin(), locale.DayNames.end(), missing)) << name;
        EXPECT_TRUE(std::none_of(locale.ShortDayNames.begin(), locale.ShortDayNames.end(), missing)) << name;
        EXPECT_NE(locale.DecimalSeparator, locale.GroupSeparator) << name;
        EXPECT_NE(locale.ShortDate.find("yyyy"), std::string::npos) << name;
    }
}

TEST(Locale, ComparesFoldedTextUnlessToldOtherwise) {
    Locale locale = BuiltInLocale("de");
    EXPECT_EQ(locale.Compare("ÄPFEL", "äpfel"), 0);
    EXPECT_LT(locale.Compare("a", "B"), 0);
    locale.CompareText = [](std::string_view left, std::string_view right) { return right.compare(left); };
    EXPECT_GT(locale.Compare("a", "b"), 0);
}

} // namespace
} // namespace quillgrid
