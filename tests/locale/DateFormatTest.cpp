#include "LocaleSamples.h"

#include "quillgrid/locale/Format.h"

#include <gtest/gtest.h>

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

const DateTime Morning = At(2026, 11, 16, 9, 5, 7);
const DateTime Evening = At(2026, 3, 1, 21, 30);

TEST(NamedDateFormat, FollowsTheLocale) {
    Check({
        {Morning, "Short Date", "de-DE", "16.11.2026"},
        {Morning, "short date", "en-US", "11/16/2026"},
        {Evening, "Short Date", "en-US", "3/1/2026"},
        {Evening, "Short Date", "en-GB", "01/03/2026"},
        {Evening, "Long Date", "de-AT", "Sonntag, 1. März 2026"},
        {Evening, "Long Date", "en-US", "Sunday, March 1, 2026"},
        {Evening, "Long Date", "es-ES", "domingo, 1 de marzo de 2026"},
        {Evening, "Long Date", "fr-FR", "dimanche 1 mars 2026"},
        {Evening, "Medium Date", "it-IT", "1 mar 2026"},
        {Evening, "Long Time", "de-DE", "21:30:00"},
        {Evening, "Long Time", "en-US", "9:30:00 PM"},
        {Morning, "Long Time", "es-ES", "9:05:07"},
        {Evening, "Short Time", "en-US", "21:30"},
        {Morning, "Medium Time", "es-ES", "09:05 a. m."},
    });
}

TEST(NamedDateFormat, GeneralDateLeavesOutWhatIsNotThere) {
    Check({
        {Morning, "General Date", "de-DE", "16.11.2026 09:05:07"},
        {At(2026, 11, 16), "General Date", "de-DE", "16.11.2026"},
        {DateTime{0, 9 * 3600}, "General Date", "de-DE", "09:00:00"},
        {DateTime{0, 0}, "General Date", "de-DE", "00:00:00"},
        {At(100, 1, 1), "", "de-DE", "01.01.0100"},
        {At(9999, 12, 31, 23, 59, 59), "c", "en-US", "12/31/9999 11:59:59 PM"},
    });
}

TEST(NamedDateFormat, TakesNumbersAndTexts) {
    Check({
        {46342, "Short Date", "de-DE", "16.11.2026"},
        {46342.5, "General Date", "de-DE", "16.11.2026 12:00:00"},
        {0.5, "Long Time", "de-DE", "12:00:00"},
        {-1.25, "General Date", "de-DE", "29.12.1899 06:00:00"},
        {true, "Short Date", "de-DE", "29.12.1899"},
        {1e9, "Short Date", "de-DE", "1000000000"},
        {"November 16, 2026", "Short Date", "de-DE", "16.11.2026"},
        {"16.11.2026", "yyyy-mm-dd", "de-DE", "2026-11-16"},
        {"4711", "Short Date", "de-DE", "4711"},
        {"morgen", "Short Date", "de-DE", "morgen"},
        {Variant::Null(), "Short Date", "de-DE", ""},
        {Variant(), "dd.mm.yyyy", "de-DE", ""},
        {DateTime{LastDay + 1, 0}, "Short Date", "de-DE", ""},
        {DateTime{0, -1}, "General Date", "de-DE", ""},
    });
}

TEST(DatePattern, WritesItsParts) {
    Check({
        {Evening, "d dd ddd dddd", "de-DE", "1 01 So Sonntag"},
        {Evening, "M MM MMM MMMM", "de-DE", "3 03 Mär März"},
        {Evening, "y yy yyyy q", "de-DE", "60 26 2026 1"},
        {Morning, "h:hh:n:nn:s:ss", "de-DE", "9:09:5:05:7:07"},
        {Morning, "h:mm d.m.", "de-DE", "9:05 16.11."},
        {Morning, "hh\"h\"m", "de-DE", "09h5"},
        {Morning, "mm/hh/mm/mm", "en-US", "11/09/05/11"},
        {Morning, "h mmm", "en-US", "9 Nov"},
        {Evening, "w ww", "de-DE", "7 9"},
        {Evening, "w ww", "en-US", "1 10"},
        {Evening, "ddddd ttttt", "de-DE", "01.03.2026 21:30:00"},
        {Evening, "dddddd", "de-DE", "Sonntag, 1. März 2026"},
        {Evening, "d/m/yyyy", "de-DE", "1.3.2026"},
        {Evening, "d\\/m\\d", "de-DE", "1/3d"},
        {Evening, "\"dd\" d \"m", "de-DE", "dd 1 m"},
        {Evening, "yyyyy-ddddddd", "de-DE", "202660-Sonntag, 1. März 20261"},
    });
}

TEST(DatePattern, CountsHalfDaysWhenItNamesThem) {
    Check({
        {At(2026, 1, 1, 0, 5), "h:nn AM/PM", "en-US", "12:05 AM"},
        {At(2026, 1, 1, 12), "hh am/pm", "en-US", "12 pm"},
        {At(2026, 1, 1, 13), "h a/p", "en-US", "1 p"},
        {At(2026, 1, 1, 13), "h A/P", "en-US", "1 P"},
        {At(2026, 1, 1, 13), "h \"am/pm\"", "en-US", "13 am/pm"},
        {At(2026, 1, 1, 13), "h ttttt", "en-US", "13 1:00:00 PM"},
    });
}

TEST(DatePattern, IsToldFromANumberPatternByPlacesAndValue) {
    Check({
        {46342, "dd.mm.", "de-DE", "16.11."},
        {2, "0 d", "de-DE", "2 d"},
        {Evening, "d 0", "de-DE", "1 0"},
        {46342, "\"0\" d", "de-DE", "0 16"},
        {46342, "A/P", "en-US", "A"},
        {12.5, "ttttt", "de-DE", "12:00:00"},
    });
}

TEST(DatePattern, SurvivesALocaleThatNamesItself) {
    Locale locale = BuiltInLocale("de-DE");
    locale.ShortDate = "ddddd c ddddd d";
    locale.LongTime = "ttttt h";
    EXPECT_EQ(Format(Evening, "c", locale), "   1  21");
    EXPECT_LT(Format(Evening, "General Date", locale).size(), 100U);
}

} // namespace
} // namespace quillgrid
