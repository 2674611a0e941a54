#include "LocaleSamples.h"

#include "quillgrid/locale/DateReader.h"
#include "quillgrid/locale/Format.h"

#include <gtest/gtest.h>

#include <random>

namespace quillgrid {
namespace {

TEST(ExpandYear, PutsTwoDigitsIntoOurTime) {
    struct {
        std::int64_t Typed;
        std::optional<int> Year;
    } const cases[] = {{0, 2000},
                       {29, 2029},
                       {30, 1930},
                       {99, 1999},
                       {100, 100},
                       {9999, 9999},
                       {-1, std::nullopt},
                       {10000, std::nullopt},
                       {INT64_MAX, std::nullopt}};
    for (const auto& [typed, year] : cases)
        EXPECT_EQ(ExpandYear(typed), year) << typed;
}

TEST(ReadDateParts, KeepsToTheOrder) {
    using enum DateOrder;
    struct {
        std::string_view Text;
        DateOrder Order;
        std::optional<std::int32_t> Day;
    } const cases[] = {
        {"12/3/2027", DayMonthYear, At(2027, 3, 12).Day},
        {"12/3/2027", MonthDayYear, At(2027, 12, 3).Day},
        {"27/3/12", YearMonthDay, At(2027, 3, 12).Day},
        {"2027/3/12", DayMonthYear, At(2027, 3, 12).Day},
        {"01/01/0100", DayMonthYear, At(100, 1, 1).Day},
        {"31/12/9999", DayMonthYear, LastDay},
        {"29/2/28", DayMonthYear, At(2028, 2, 29).Day},
        {"29/2/2027", DayMonthYear, std::nullopt},
        {"25/3/2026", MonthDayYear, std::nullopt},
        {"3/25/2026", DayMonthYear, std::nullopt},
        {"0/3/2026", DayMonthYear, std::nullopt},
        {"1/0/2026", DayMonthYear, std::nullopt},
        {"1/1/10000", DayMonthYear, std::nullopt},
        {"1/1/99999999999999999999", DayMonthYear, std::nullopt},
        {"1/1", DayMonthYear, std::nullopt},
        {"1/1/", DayMonthYear, std::nullopt},
        {"/1/1", DayMonthYear, std::nullopt},
        {"1/1/1/1", DayMonthYear, std::nullopt},
        {" 1/1/1", DayMonthYear, std::nullopt},
        {"1/1/1 ", DayMonthYear, std::nullopt},
        {"", DayMonthYear, std::nullopt},
        {"-1/1/1", DayMonthYear, std::nullopt},
    };
    for (const auto& [text, order, day] : cases)
        EXPECT_EQ(ReadDateParts(text, order), day) << text;
}

TEST(ReadTimeParts, TakesOneOrTwoDigitsEach) {
    struct {
        std::string_view Text;
        std::optional<std::int32_t> Seconds;
    } const cases[] = {{"12:30:00", 45000},       {"9:5:7", 32707},           {"00:00:00", 0},
                       {"23:59:59", 86399},       {"24:00:00", std::nullopt}, {"005:00:00", std::nullopt},
                       {"1:60:00", std::nullopt}, {"1:00", std::nullopt},     {"1:00:00:", std::nullopt},
                       {"", std::nullopt},        {":1:1", std::nullopt}};
    for (const auto& [text, seconds] : cases)
        EXPECT_EQ(ReadTimeParts(text), seconds) << text;
}

void ExpectRecognised(std::string_view text, std::string_view locale, DateTime value, bool date, bool time) {
    const auto read = RecogniseDateTime(text, BuiltInLocale(locale));
    ASSERT_TRUE(read) << text << " in " << locale;
    EXPECT_EQ(read->Value, value) << text << " in " << locale;
    EXPECT_EQ(read->HasDate, date) << text;
    EXPECT_EQ(read->HasTime, time) << text;
}

TEST(RecogniseDateTime, ReadsDatesAsPeopleWriteThem) {
    const DateTime day = At(2026, 11, 16);
    for (const auto text : {"16.11.2026",       "16. 11. 2026",      "16/11/26",
                            "16-11-2026",       "16 11 2026",        "2026-11-16",
                            "2026/11/16",       "16. November 2026", "16.November.2026",
                            "16-nov-2026",      "NOV. 16, 2026",     "november 16 2026",
                            "2026 November 16", "Mo, 16. Nov. 2026", "Monday, November 16, 2026",
                            "16Nov26",          " 16.11.2026. ",     "16.\u00A0November 2026",
                            "16:11:2026",       "16;11;2026",        "16 of November, 2026"}) {
        ExpectRecognised(text, "de-DE", day, true, false);
    }
    ExpectRecognised("11/16/2026", "en-US", day, true, false);
    ExpectRecognised("16 de noviembre de 2026", "es-ES", day, true, false);
    ExpectRecognised("16 novembre 2026", "it-IT", day, true, false);
    ExpectRecognised("lun. 16 nov. 2026", "fr-FR", day, true, false);
    ExpectRecognised("mar 17 mar 2026", "it-IT", At(2026, 3, 17), true, false);
    ExpectRecognised("1. Jänner 2026", "de-DE", At(2026, 1, 1), true, false);
    ExpectRecognised("1 MÄRZ 2026", "en-US", At(2026, 3, 1), true, false);
}

TEST(RecogniseDateTime, ReadsTimesWithAndWithoutADate) {
    const DateTime both = At(2026, 11, 16, 9, 30);
    for (const auto text :
         {"2026-11-16T09:30:00", "2026-11-16 09:30:00.000", "16.11.2026 9:30", "16.11.2026, 9:30 Uhr",
          "9:30 16.11.2026", "16 Nov 2026 9:30 AM", "16.11.2026 9.30", "Mo, 16. Nov. 2026 09:30"}) {
        ExpectRecognised(text, "de-DE", both, true, true);
    }
    ExpectRecognised("9:00:00 AM", "en-US", {0, 9 * 3600}, false, true);
    ExpectRecognised("9 pm", "de-DE", {0, 21 * 3600}, false, true);
    ExpectRecognised("12:15 a.m.", "de-DE", {0, 15 * 60}, false, true);
    ExpectRecognised("9:05 p. m.", "es-ES", {0, 21 * 3600 + 5 * 60}, false, true);
    ExpectRecognised("9.30 PM", "de-DE", {0, 21 * 3600 + 30 * 60}, false, true);
    ExpectRecognised("November 16, 2026 12 PM", "en-US", At(2026, 11, 16, 12), true, true);
    ExpectRecognised("24.12.2026 00:00", "de-DE", At(2026, 12, 24), true, true);
}

TEST(RecogniseDateTime, RefusesEverythingElse) {
    for (const auto text : {"",
                            " ",
                            "12",
                            "12.3.",
                            "16.11",
                            "November 2026",
                            "16 November",
                            "31.2.2026",
                            "3/25/2026",
                            "1.1.10000",
                            "25:00",
                            "9:60",
                            "13 PM",
                            "0:30 PM",
                            "9:30 AM PM",
                            "16.11.2026 AM",
                            "16.11.2026 9",
                            "1.2.3.4",
                            "-16.11.2026",
                            "16. November Dezember 2026",
                            "16.11.2026 heute",
                            "9:30 16 11",
                            "1 9:30 2 2026",
                            "1.1.2026 9:30:00:00",
                            "November",
                            "AM",
                            "T",
                            "1e5",
                            "+1.1.2026",
                            "2026-11-16T09:30:00Z",
                            "١٦.١١.٢٠٢٦",
                            "\xff\xfe",
                            "16.\xff.2026",
                            "1 2 3 4 5 6 7 8 9",
                            "1234567890.1.1",
                            "20261116"}) {
        EXPECT_FALSE(RecogniseDateTime(text, BuiltInLocale("de-DE"))) << text;
    }
    EXPECT_FALSE(RecogniseDateTime("25/3/2026", BuiltInLocale("en-US")));
    for (const char filler : {'1', ' ', 'x', '.', '\xc3', ':'}) {
        EXPECT_FALSE(RecogniseDateTime(std::string(1'000'000, filler), BuiltInLocale("de-DE")));
    }
}

TEST(RecogniseDateTime, ReadsBackWhatEveryLocalePrints) {
    std::mt19937 random(4);
    for (const auto name : AllLocaleNames) {
        const Locale& locale = BuiltInLocale(name);
        for (std::int32_t day = FirstDay; day <= LastDay; day += day > 46'000 && day < 46'800 ? 1 : 1'499) {
            const DateTime value{day, static_cast<std::int32_t>(random() % 86'399) + 1};
            for (const auto pattern : {"Short Date", "Medium Date", "Long Date", "ddd dd mmm yyyy"}) {
                ExpectRecognised(Format(value, pattern, locale), name, {day, 0}, true, false);
            }
            if (day != 0) ExpectRecognised(Format(value, "General Date", locale), name, value, true, true);
            ExpectRecognised(Format(value, "Long Time", locale), name, {0, value.Second}, false, true);
        }
    }
}

TEST(ReadDateParts, ReadsBackShortDates) {
    for (const auto name : AllLocaleNames) {
        Locale locale = BuiltInLocale(name);
        locale.DateSeparator = "/";
        for (char& character : locale.ShortDate)
            character = character == '.' ? '/' : character;
        for (std::int32_t day = FirstDay; day <= LastDay; day += 911) {
            ASSERT_EQ(ReadDateParts(Format(DateTime{day, 0}, "Short Date", locale), locale.Order), day)
                << name;
        }
    }
}

} // namespace
} // namespace quillgrid
