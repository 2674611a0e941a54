#include "tests/cells/ConversionFixture.h"

#include <utility>
#include <vector>

namespace quillgrid {
namespace {

using DateConversion = ConversionTest;

TEST_F(DateConversion, MissingPartsComeFromToday) {
    Rules.Rule = qgvrDate;
    const std::vector<std::pair<const char*, Variant>> cases = {
        {"12", Date(2026, 11, 12)},       {"12.3", Date(2026, 3, 12)},
        {"3.5.", Date(2026, 5, 3)},       {"12.3.27", Date(2027, 3, 12)},
        {"12 3 2027", Date(2027, 3, 12)}, {"12+3-2027", Date(2027, 3, 12)},
        {"12#3,27", Date(2027, 3, 12)},   {"  12.3.2027 ", Date(2027, 3, 12)},
        {"1.1.29", Date(2029, 1, 1)},     {"1.1.30", Date(1930, 1, 1)},
        {"1.1.100", Date(100, 1, 1)},     {"31.12.9999", Date(9999, 12, 31)},
        {"29.2.2028", Date(2028, 2, 29)},
    };
    for (const auto& [text, date] : cases)
        EXPECT_EQ(Converted(text), date) << text;
}

TEST_F(DateConversion, NoDayOfTheCalendarIsRefused) {
    Rules.Rule = qgvrDate;
    for (const char* text :
         {"29.2.2027", "31.4.", "0", "31", "1.13.2026", "3/25/2026", "46342", "abc", "-", "...", "1.1.99999",
          "1.1.10000", "1.2.3.4.5.6.7", "10:61", "99999999999999999999.1.1"}) {
        EXPECT_EQ(Converted(text), Variant("error 20002")) << text;
    }
    for (const Variant& number : {Variant(46342.0), Variant(12), Variant(12.5), Variant(std::int16_t{3}),
                                  Variant(Currency::FromScaled(30000))})
        EXPECT_EQ(Converted(number), Variant("error 20002")) << "only date variants and texts are dates";
    EXPECT_EQ(Converted(true), Variant("error 20002"));
    EXPECT_EQ(Converted(DateTime{LastDay + 1, 0}), Variant("error 20002"));
    Today = LastDay + 7;
    EXPECT_EQ(Converted("12"), Variant("error 20002")) << "an impossible today completes nothing";
}

TEST_F(DateConversion, TheLocaleOrdersWhatWasTypedButADayAloneIsADay) {
    Rules.Rule = qgvrDate;
    LocaleName = "en-US";
    EXPECT_EQ(Converted("12"), Date(2026, 11, 12));
    EXPECT_EQ(Converted("3/25"), Date(2026, 3, 25));
    EXPECT_EQ(Converted("3/25/2027"), Date(2027, 3, 25));
    EXPECT_EQ(Converted("25/3/2027"), Variant("error 20002"));
    Locale yearFirst = BuiltInLocale("de-DE");
    yearFirst.Order = DateOrder::YearMonthDay;
    for (const char* text : {"27/3/25", "2027-3-25", "2027.03.25"}) {
        Variant value(text);
        EXPECT_EQ(ConvertInput(value, Rules, {Separators, yearFirst, Today}), qgErrNone);
        EXPECT_EQ(value, Date(2027, 3, 25)) << text;
    }
    Variant value("3/25");
    EXPECT_EQ(ConvertInput(value, Rules, {Separators, yearFirst, Today}), qgErrNone);
    EXPECT_EQ(value, Date(2026, 3, 25)) << "the completed year stands behind month and day";
}

TEST_F(DateConversion, DatesWrittenInFullAreRecognised) {
    Rules.Rule = qgvrDate;
    const Variant expected = Date(2027, 3, 12);
    for (const char* text : {"2027-03-12", "12. M\u00E4rz 2027", "12 March 2027", "12.3.2027 10:30:00",
                             "2027-03-12 10:30", "12-mar-2027"}) {
        EXPECT_EQ(Converted(text), expected) << text;
    }
    EXPECT_EQ(Converted("M\u00E4rz"), Variant("error 20002")) << "no separator, nothing to recognise";
    LocaleName = "en-US";
    EXPECT_EQ(Converted("March 12, 2027"), expected);
    EXPECT_EQ(Converted("2027-03-12"), expected);
}

TEST_F(DateConversion, DateVariantsKeepTheirOwnHalf) {
    const Variant now(DateTime{Day(2026, 11, 16), 34'200});
    Rules.Rule = qgvrDate;
    EXPECT_EQ(Converted(now), Date(2026, 11, 16));
    Rules.Rule = qgvrTime;
    EXPECT_EQ(Converted(now), Time(9, 30, 0));
    EXPECT_EQ(Converted(DateTime{0, -1}), Variant("error 20003"));
    EXPECT_EQ(Converted(DateTime{0, SecondsPerDay}), Variant("error 20003"));
}

TEST_F(DateConversion, TimesAreCompletedAndTwentyFourIsMidnight) {
    Rules.Rule = qgvrTime;
    const std::vector<std::pair<const char*, Variant>> cases = {
        {"9", Time(9, 0, 0)},
        {"9.30", Time(9, 30, 0)},
        {"24", Time(0, 0, 0)},
        {"12 30", Time(12, 30, 0)},
        {"24:30", Time(0, 30, 0)},
        {"24:00:00", Time(0, 0, 0)},
        {"23:59:59", Time(23, 59, 59)},
        {"9-5+7", Time(9, 5, 7)},
        {"9:00 PM", Time(21, 0, 0)},
        {"9:05:07 am", Time(9, 5, 7)},
        {"1:05:09\u202FPM", Time(13, 5, 9)},
        {"1:05\u00A0PM", Time(13, 5, 0)},
        {"12\u200930", Time(12, 30, 0)},
        {"12.3.2027 10:30:00", Time(10, 30, 0)},
        {"12.3.2027", Time(0, 0, 0)},
    };
    for (const auto& [text, time] : cases)
        EXPECT_EQ(Converted(text), time) << text;
    for (const char* text : {"245", "25", "9:60", "9:5:60", "2430", "1230", "noon", "9 Uhr", ":", "0009"}) {
        EXPECT_EQ(Converted(text), Variant("error 20003")) << text;
    }
}

TEST_F(DateConversion, DatesAreLimitedAndEarlyTimesRefused) {
    Rules.Rule = qgvrDate;
    SetBounds(DateTime{Day(2026, 1, 1), 80'000}, "31.12.2026");
    EXPECT_EQ(Converted("1.1.2026"), Date(2026, 1, 1)) << "compared in whole days";
    EXPECT_EQ(Converted("31.12.2025"), Date(2026, 1, 1));
    EXPECT_EQ(Converted("1.1.2027"), Date(2026, 12, 31));
    SetBounds(DateTime{LastDay + 1, 0}, "whenever");
    EXPECT_EQ(Converted("1.1.2027"), Date(2027, 1, 1));

    Rules.Rule = qgvrTime;
    SetBounds("08:00", "18:00");
    EXPECT_EQ(Converted("07:30"), Variant("error 20008"));
    EXPECT_EQ(Converted("07:59:59"), Variant("error 20008"));
    EXPECT_EQ(Converted("8"), Time(8, 0, 0));
    EXPECT_EQ(Converted("19:00"), Time(18, 0, 0));
    SetBounds(Variant::Null(), 0.5);
    EXPECT_EQ(Converted("19:00"), Time(12, 0, 0)) << "a number bounds by its part of the day";
}

TEST_F(DateConversion, HostSeparatorsMayBeAnyCharacter) {
    Rules.Rule = qgvrDate;
    Separators.Date = "/.\u5E74\u6708X";
    EXPECT_EQ(Converted("2027\u5E743\u670812"), Date(2027, 3, 12));
    EXPECT_EQ(Converted("12x3x2027"), Date(2027, 3, 12));
    Separators.Time = ":\u5E74";
    Rules.Rule = qgvrTime;
    EXPECT_EQ(Converted("9\u5E7430"), Time(9, 30, 0));
}

} // namespace
} // namespace quillgrid
