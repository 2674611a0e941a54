#include "tests/cells/ConversionFixture.h"

#include <limits>
#include <utility>
#include <vector>

namespace quillgrid {
namespace {

using NumberConversion = ConversionTest;

Currency Money(std::int64_t scaled) {
    return Currency::FromScaled(scaled);
}

TEST_F(NumberConversion, IntegersKeepDigitsAndALeadingMinusOnly) {
    Rules.Rule = qgvrInteger;
    const std::vector<std::pair<const char*, std::int32_t>> cases = {
        {"12a3", 123},
        {"-5", -5},
        {"5-", 5},
        {"1.000", 1000},
        {"1,000", 1000},
        {"2.5", 25},
        {"1 000", 1000},
        {"+7", 7},
        {"--7", -7},
        {"1-2", 12},
        {"  -42  ", -42},
        {"abc", 0},
        {"-", 0},
        {".", 0},
        {"\t", 0},
        {"0000000000012", 12},
        {"2147483647", 2147483647},
        {"-2147483648", -2147483647 - 1},
        {"1\u00A0000 \u20AC", 1000},
        {"1\xFF"
         "2\xC3",
         12},
        {"\u0663", 0}, // digits of other scripts are no digits here
    };
    for (const auto& [text, number] : cases)
        EXPECT_EQ(Converted(text), Variant(number)) << text;
    for (const char* text : {"2147483648", "-2147483649", "3000000000", "99999999999999999999999999"}) {
        EXPECT_EQ(Converted(text), Variant("error 20001")) << text;
    }
}

TEST_F(NumberConversion, TheLastInnerSeparatorIsTheDecimalPoint) {
    Rules.Rule = qgvrDouble;
    const std::vector<std::pair<const char*, double>> cases = {
        {"3,5", 3.5},
        {"3.5.", 3.5},
        {"1.2.3", 12.3},
        {"1.234,50", 1234.5},
        {"1,234.50", 1234.5},
        {"1.234", 1.234},
        {",5", 0.5},
        {"-,5", -0.5},
        {"5,", 5},
        {"-.", 0},
        {"1 234,5", 1234.5},
        {"12.50 m2", 12.502},
        {"-12,50 \u20AC", -12.5},
        {"- 5", -5},
        {"-0", 0},
        {"1;5", 15},
        {"1E5", 15},
        {"1'234.5", 1234.5},
    };
    for (const auto& [text, number] : cases)
        EXPECT_EQ(Converted(text), Variant(number)) << text;
}

TEST_F(NumberConversion, SeparatorsAreTheControlsAndIgnoreCase) {
    Rules.Rule = qgvrDouble;
    Separators.Number = ".,;x\u00D6";
    EXPECT_EQ(Converted("1;5"), Variant(1.5));
    EXPECT_EQ(Converted("1X5"), Variant(1.5));
    EXPECT_EQ(Converted("1\u00F65"), Variant(1.5));
    Separators.Number = "";
    EXPECT_EQ(Converted("1.5"), Variant(15.0));
    EXPECT_EQ(Converted(Variant(1.5)), Variant(1.5)) << "numbers do not pass through separators";
}

TEST_F(NumberConversion, MoneyRoundsHalfToEvenInDecimal) {
    for (const auto rule : {qgvrCurrency, qgvrEuro}) {
        Rules.Rule = rule;
        EXPECT_EQ(Converted("0,00005"), Variant(Money(0)));
        EXPECT_EQ(Converted("0,00015"), Variant(Money(2)));
        EXPECT_EQ(Converted("0,000150000001"), Variant(Money(2)));
        EXPECT_EQ(Converted("-1.234,50 \u20AC"), Variant(Money(-12345000)));
        EXPECT_EQ(Converted("922.337.203.685.477,5807"), Variant(Money(INT64_MAX)));
        EXPECT_EQ(Converted("922.337.203.685.477,5808"), Variant("error 20001"));
    }
}

TEST_F(NumberConversion, NumbersThatCodeAssignsKeepTheirMeaning) {
    Rules.Rule = qgvrInteger;
    EXPECT_EQ(Converted(2.5), Variant(2));
    EXPECT_EQ(Converted(3.5), Variant(4));
    EXPECT_EQ(Converted(1e-5), Variant(0));
    EXPECT_EQ(Converted(std::int16_t{7}), Variant(7));
    EXPECT_EQ(Converted(Money(-55000)), Variant(-6));
    EXPECT_EQ(Converted(3e9), Variant("error 20001"));
    Rules.Rule = qgvrDouble;
    EXPECT_EQ(Converted(5.5), Variant(5.5));
    EXPECT_EQ(Converted(1e-300), Variant(1e-300));
    for (const double none :
         {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        EXPECT_EQ(Converted(none), Variant("error 20001"));
    }
    Rules.Rule = qgvrCurrency;
    EXPECT_EQ(Converted(0.00005), Variant(Money(1))) << "the double is a little above the tie";
    EXPECT_EQ(Converted(1e15), Variant("error 20001"));
}

TEST_F(NumberConversion, NumbersAreLimitedToTheBounds) {
    Rules.Rule = qgvrInteger;
    SetBounds(1, 10);
    EXPECT_EQ(Converted("0"), Variant(1));
    EXPECT_EQ(Converted("99"), Variant(10));
    EXPECT_EQ(Converted("3000000000"), Variant("error 20001")) << "too big for the type before it is limited";
    SetBounds(10, 5);
    EXPECT_EQ(Converted("7"), Variant(10)) << "the lower bound ends the check";
    SetBounds(Variant::Null(), "2,6");
    EXPECT_EQ(Converted("99"), Variant(3)) << "bounds take the type of the rule";
    SetBounds("soon", Variant());
    EXPECT_EQ(Converted("-99"), Variant(-99));
    Rules.Rule = qgvrCurrency;
    SetBounds(0.5, "1.000,25");
    EXPECT_EQ(Converted("-3"), Variant(Money(5000)));
    EXPECT_EQ(Converted("5000"), Variant(Money(10002500)));
    Rules.Rule = qgvrDouble;
    SetBounds(std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity());
    EXPECT_EQ(Converted("1e9"), Variant(19.0));
    SetBounds(0, 100);
    EXPECT_EQ(Converted("100,01"), Variant(100.0));
}

TEST_F(NumberConversion, AbsurdlyLongTextsAreReadWhole) {
    const std::string zeros(1'000'000, '0');
    Rules.Rule = qgvrInteger;
    EXPECT_EQ(Converted(zeros + "17"), Variant(17));
    EXPECT_EQ(Converted("17" + std::string(1'000'000, 'x') + "4"), Variant(174));
    EXPECT_EQ(Converted(std::string(1'000'000, '9')), Variant("error 20001"));
    Rules.Rule = qgvrCurrency;
    EXPECT_EQ(Converted("0,00005" + zeros + "1"), Variant(Money(1))) << "no tie, however late the last digit";
    Rules.Rule = qgvrDouble;
    EXPECT_EQ(Converted("1," + zeros), Variant(1.0));
    EXPECT_EQ(Converted(std::string(400, '9')), Variant("error 20001"));
}

} // namespace
} // namespace quillgrid
