#include "quillgrid/hosts/qt/QtLocale.h"

#include "quillgrid/locale/Coercion.h"
#include "quillgrid/locale/Format.h"

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

const DateTime Spring{46145, 47105}; // 3 May 2026, 13:05:05

Locale Of(const char* name) {
    return LocaleFromQt(QLocale(QString::fromLatin1(name)));
}

TEST(LocaleFromQt, OwnLocalesAreTaken) {
    const Locale german = Of("de_DE");
    EXPECT_EQ(german.LongDate, BuiltInLocale("de-DE").LongDate);
    EXPECT_LT(german.Compare("Äpfel", "Birnen"), 0); // a language's order, not that of code points
}

TEST(LocaleFromQt, OthersWriteDatesAsTheirCountryDoes) {
    EXPECT_EQ(Format(Spring, "Short Date", Of("sv_SE")), "2026-05-03");
    EXPECT_EQ(Format(Spring, "Short Date", Of("ja_JP")), "2026/05/03");
    EXPECT_EQ(Format(Spring, "Short Date", Of("pt_BR")), "03/05/2026");
    EXPECT_EQ(Format(Spring, "Short Date", Of("nb_NO")), "03.05.2026");
    EXPECT_EQ(Format(Spring, "Long Date", Of("pt_BR")), "domingo, 3 de maio de 2026");
    EXPECT_EQ(Format(Spring, "Long Date", Of("ja_JP")), "2026年5月3日日曜日");
    EXPECT_EQ(Format(Spring, "Long Time", Of("sv_SE")), "13:05:05");
    EXPECT_EQ(Format(Spring, "Long Time", Of("en_AU")).substr(0, 7), "1:05:05");
}

TEST(LocaleFromQt, NoLocaleIsAmericanEnglish) {
    const Locale none = LocaleFromQt(QLocale::c());
    EXPECT_EQ(Format(Spring, "Short Date", none), "5/3/2026");
    EXPECT_EQ(Format(Currency::FromScaled(12'345'000), "Currency", none), "$1,234.50");
}

TEST(LocaleFromQt, MoneyAndNumbers) {
    EXPECT_EQ(Format(Currency::FromScaled(-12'345'000), "Currency", Of("ja_JP")).find('-'), 0U);
    EXPECT_EQ(Of("ja_JP").CurrencyDecimals, 0);
    EXPECT_EQ(Of("sv_SE").CurrencyDecimals, 2);
    EXPECT_EQ(Of("sv_SE").CurrencySymbolPlace, CurrencyPlace::AfterWithBlank);
    EXPECT_EQ(Of("pt_BR").CurrencySymbolPlace, CurrencyPlace::BeforeWithBlank);
    EXPECT_EQ(Of("sv_SE").DecimalSeparator, ",");
}

TEST(LocaleFromQt, EveryLocaleWritesDatesThatItCanRead) {
    const auto all =
        QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(all.size(), 300);
    int tried = 0;
    for (const QLocale& one : all) {
        if (++tried % 7 != 0) continue; // a seventh of them takes a moment and has every kind
        const Locale locale = LocaleFromQt(one);
        const std::string text = Format(DateTime{Spring.Day, 0}, "Short Date", locale);
        EXPECT_NE(text.find("2026"), std::string::npos) << locale.Name << " " << text;
        EXPECT_EQ(ToDateTime(Variant(text), locale), std::optional(DateTime{Spring.Day, 0}))
            << locale.Name << " " << text;
    }
}

TEST(PatternFromQt, TranslatesLettersAndShieldsLiterals) {
    const auto convert = [](const char* text) { return PatternFromQt(QString::fromUtf8(text), ".", ":"); };
    EXPECT_EQ(convert("dddd, d. MMMM yyyy"), "dddd, d. mmmm yyyy");
    EXPECT_EQ(convert("yy"), "yyyy");
    EXPECT_EQ(convert("HH:mm:ss t"), "hh:nn:ss");
    EXPECT_EQ(convert("H:mm:ss (t)"), "h:nn:ss");
    EXPECT_EQ(convert("h:mm AP"), "h:nn AM/PM");
    EXPECT_EQ(convert("d 'de' MMMM"), "d \\d\\e mmmm");
    EXPECT_EQ(convert("h 'o''clock'"), "h \\o'\\c\\l\\o\\c\\k");
    EXPECT_EQ(convert("d/M"), "d\\/m");
    EXPECT_EQ(convert("'"), "");
    EXPECT_EQ(convert("'open"), "\\o\\p\\e\\n");
}

} // namespace
} // namespace quillgrid::qt
