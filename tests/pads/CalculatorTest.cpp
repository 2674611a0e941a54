#include "tests/pads/CalculatorFixture.h"

#include "quillgrid/pads/PadKeyCodes.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace quillgrid::test {

TEST(CalculatorTest, ComputesFromLeftToRight) {
    TypedCalculator calculator;
    EXPECT_EQ(calculator.Type("1+2*3="), "9 vv");
    EXPECT_EQ(calculator.Type("7"), "7"); // a new number after a result
    EXPECT_EQ(calculator.Type("+3="), "10 v");
    EXPECT_EQ(calculator.Type("/4="), "2.5 v"); // an operator goes on with the result
    EXPECT_EQ(calculator.Type("=c"), "0 C");
    EXPECT_EQ(calculator.Type("8-+*2="), "16 v"); // the last operator counts
    EXPECT_EQ(calculator.Type("c+5="), "5 v");    // from nothing is from 0
    EXPECT_EQ(calculator.Type("c9+="), "9 v");
    EXPECT_EQ(calculator.Type("c9-4"), "4-");
    EXPECT_EQ(calculator.Core.Value(), Variant(Money("4")));
    EXPECT_EQ(calculator.Type("+"), "0+ v"); // the empty second operand stands there
    EXPECT_EQ(calculator.Core.Value(), Variant(Currency{}));
}

TEST(CalculatorTest, MoneyRoundsHalvesToEven) {
    TypedCalculator calculator;
    EXPECT_EQ(calculator.Type(".0001/2="), "0 v");
    EXPECT_EQ(calculator.Type(".0003/2="), ".0002 v");
    EXPECT_EQ(calculator.Type(".0003~*.5="), "-.0002 v");
    EXPECT_EQ(calculator.Type("2/3="), ".6667 v");
    EXPECT_EQ(calculator.Type("1.00025+0="), "1.0002 v");
}

TEST(CalculatorTest, ValueIsTheResultWhileValueChangeIsRaised) {
    TypedCalculator calculator;
    std::string seen;
    calculator.Core.Machine().ValueChange.Listen(
        [&] { seen += calculator.Core.Value().ToPlainText() + ";"; });
    calculator.Type("1+2*3-");
    EXPECT_EQ(seen, "3;9;");
}

TEST(CalculatorTest, ClosesOnSecondEqualsAndSecondClear) {
    TypedCalculator calculator;
    EXPECT_EQ(calculator.Type("2+3=="), "5 vC");
    EXPECT_EQ(calculator.Type("4"), "54"); // closing forgets that a result stands there
    EXPECT_EQ(calculator.Type("="), "54 C");
    EXPECT_EQ(calculator.Type("c1c"), "0");
    EXPECT_EQ(calculator.Type("c"), "0 C");
    EXPECT_EQ(calculator.Core.Value(), Variant(Currency{}));
    EXPECT_EQ(calculator.Type("c"), "0"); // and counts anew
    std::int32_t code = '=';
    calculator.Core.Machine().Press(code);
    EXPECT_EQ(code, 0);
}

TEST(CalculatorTest, RefusesWithABeepAndKeepsWhatWasThere) {
    TypedCalculator calculator;
    EXPECT_EQ(calculator.Type("5/0="), "0/ b");
    EXPECT_EQ(calculator.Type("+"), "0/ b");
    EXPECT_EQ(calculator.Type("<2="), "2.5 v");
    EXPECT_EQ(calculator.Type("c123456789012345"), "123456789012345");
    EXPECT_EQ(calculator.Type("6"), "123456789012345 b");
    EXPECT_EQ(calculator.Type("."), "123456789012345 b");
    EXPECT_EQ(calculator.Type("c1.2.3"), "1.23 b");
    EXPECT_EQ(calculator.Type("c999999999999999"), "99999999999999 b"); // more money than there is
    EXPECT_EQ(calculator.Type("*99999="), "99999* b");
    EXPECT_EQ(calculator.Type("?"), "99999* b");
    calculator.Type("cc");
    EXPECT_EQ(calculator.Type("2+3=?4"), "54 vb"); // after a refused key digits append
}

TEST(CalculatorTest, ShowsEntriesAsNumbers) {
    TypedCalculator calculator;
    EXPECT_EQ(calculator.Type("007"), "7");
    EXPECT_EQ(calculator.Type("c0.5"), ".5");
    EXPECT_EQ(calculator.Type("c1."), "1.");
    EXPECT_EQ(calculator.Type("+1,"), "1.+");
    EXPECT_EQ(calculator.Type("c."), ".");
    EXPECT_EQ(calculator.Core.Value(), Variant(Currency{}));
    EXPECT_EQ(calculator.Type("50"), ".5");
    EXPECT_EQ(calculator.Type("<<<"), "0");
    EXPECT_EQ(calculator.Type("<<"), "0"); // nothing left to take, no beep
    EXPECT_EQ(calculator.Type("1.23456"), "1.23456");
    EXPECT_EQ(calculator.Core.Value(), Variant(Money("1.2346")));
    EXPECT_EQ(calculator.Type("+="), "1.2346 v");
}

TEST(CalculatorTest, ChangesTheSignOfTheEntry) {
    TypedCalculator calculator;
    EXPECT_EQ(calculator.Type("~"), "0");
    EXPECT_EQ(calculator.Type("c12.50~"), "-12.5");
    EXPECT_EQ(calculator.Type("~"), "12.5");
    EXPECT_EQ(calculator.Type("*2~"), "-2*");
    EXPECT_EQ(calculator.Type("="), "-25 v");
    EXPECT_EQ(calculator.Type("c5~<"), "0"); // only the sign is left
    EXPECT_EQ(calculator.Type("3"), "-3");
    EXPECT_EQ(calculator.Type("c.~"), "0");
}

TEST(CalculatorTest, TakesValues) {
    TypedCalculator calculator;
    calculator.Type("1+2");
    calculator.Core.SetValue(Money("-0.25"));
    EXPECT_EQ(calculator.Type(""), "-.25");
    EXPECT_EQ(calculator.Type("7"), "-.257"); // a first digit is appended
    calculator.Core.SetValue("1,234.5");
    EXPECT_EQ(calculator.Type("<"), "1234.");
    for (const Variant& nothing : {Variant::Null(), Variant(), Variant("seven"), Variant(1e300)}) {
        calculator.Core.SetValue(nothing);
        EXPECT_EQ(calculator.Core.Value(), Variant(Currency{}));
    }
    // All of the money there is comes back to the last digit.
    const auto most = Currency::FromScaled(INT64_MAX);
    calculator.Core.SetValue(most);
    EXPECT_EQ(calculator.Core.Value(), Variant(most));
    EXPECT_EQ(calculator.Type("-.0001="), "922337203685477.5806 v");
}

TEST(CalculatorTest, DoublePrecisionKeepsFifteenDigitsAndNoExponent) {
    TypedCalculator calculator;
    calculator.Core.SetDoublePrecision(true);
    EXPECT_EQ(calculator.Type("1/3="), ".333333333333333 v");
    EXPECT_EQ(calculator.Core.Value(), Variant(0.333333333333333));
    EXPECT_EQ(calculator.Type("c2/3="), ".666666666666667 v");
    EXPECT_EQ(calculator.Type("c100A"), "195.583 v");
    calculator.Core.SetValue(1e20);
    EXPECT_EQ(calculator.Type("*10="), "1000000000000000000000 v");
    calculator.Core.SetValue(1.5e-7);
    EXPECT_EQ(calculator.Type("/10="), ".000000015 v");
    calculator.Core.SetValue(1.7976931348623157e308); // its 15 digits are beyond every double
    EXPECT_EQ(calculator.Core.Value(), Variant(0.0));
    calculator.Core.SetValue(1e308);
    EXPECT_EQ(calculator.Type("*10=").back(), 'b');
    calculator.Core.SetValue(1e308);
    calculator.Core.SetDoublePrecision(false); // what money cannot hold goes
    EXPECT_EQ(calculator.Type(""), "0");
    EXPECT_EQ(calculator.Core.Value(), Variant(Currency{}));
    calculator.Type("c1.23456");
    calculator.Core.SetDoublePrecision(true);
    EXPECT_EQ(calculator.Core.Value(), Variant(1.23456));
}

TEST(CalculatorTest, FormulaKeysOfOld) {
    TypedCalculator calculator;
    EXPECT_EQ(calculator.Type("100A"), "195.58 v"); // the rate has four decimals as everything
    EXPECT_EQ(calculator.Type("5"), "5");           // a formula's result counts as one
    EXPECT_EQ(calculator.Type("c116C"), "100 vv");
    EXPECT_EQ(calculator.Type("D"), "116 vv");
    EXPECT_EQ(calculator.Type("c100~B"), "-51.13 vv");
    EXPECT_EQ(calculator.Type("c5~C"), ".819 vv"); // the sign takes the place of the operator
    EXPECT_EQ(calculator.Type("c40+60A"), "195.58 vv");
    EXPECT_EQ(calculator.Type("c5/0A"), "0 bv"); // a pending failure is dropped
}

TEST(CalculatorTest, FormulaLanguage) {
    TypedCalculator calculator;
    EXPECT_EQ(calculator.Formula("(X+2)*3", 4), "18 vv");
    EXPECT_EQ(calculator.Formula("x+2*3", 4), "18 vv");
    EXPECT_EQ(calculator.Formula("X*0,5", 7), "3.5 v");
    EXPECT_EQ(calculator.Formula("X", 7), "7 C");
    EXPECT_EQ(calculator.Formula("(X+1)", 7), "8 vC");
    EXPECT_EQ(calculator.Formula("", 7), "0 C");
    EXPECT_EQ(calculator.Formula("X %+c\xC3\xBC\xCF\xA9"
                                 "1",
                                 7),
              "8 bbbbbv");
    EXPECT_EQ(calculator.Formula("X/0", 7), "0/ b");
    EXPECT_EQ(calculator.Type("="), "7 C"); // what is left of the formula goes
    EXPECT_EQ(calculator.Type("+"), "0+");
    EXPECT_EQ(calculator.Formula("X*1", Money("123456789012.3456")), "123456789012.34 bbv");
    EXPECT_EQ(calculator.Formula("999999999999999", 7), "7 bb"); // "=" fails, then the whole
}

TEST(CalculatorTest, FormulaWithoutOperatorShowsItsValueBeforeItCloses) {
    TypedCalculator calculator;
    Variant seen;
    calculator.Core.Machine().CloseUp.Listen([&] { seen = calculator.Core.Value(); });
    calculator.Formula("42", 7);
    EXPECT_EQ(seen, Variant(Money("42")));
}

TEST(CalculatorTest, LimitsOnlyColour) {
    TypedCalculator calculator;
    calculator.Type("12");
    EXPECT_FALSE(calculator.Core.IsOutOfLimits());
    calculator.Core.SetMax(10);
    EXPECT_TRUE(calculator.Core.IsOutOfLimits());
    EXPECT_EQ(calculator.Core.Value(), Variant(Money("12")));
    calculator.Core.SetMax(Money("12"));
    EXPECT_FALSE(calculator.Core.IsOutOfLimits());
    calculator.Core.SetMin("12.5");
    EXPECT_TRUE(calculator.Core.IsOutOfLimits());
    calculator.Core.SetMin("soon");
    EXPECT_FALSE(calculator.Core.IsOutOfLimits());
}

TEST(CalculatorTest, HandlersMayEndWriteThrowAndPress) {
    for (const char* keys : {"1+2*3=", "A", "2+3==", "cc", "?"}) {
        auto calculator = std::make_unique<CalculatorCore>(BuiltInLocale("en-US"));
        auto end = [&] { calculator.reset(); };
        calculator->Machine().ValueChange.Listen(end);
        calculator->Machine().CloseUp.Listen(end);
        calculator->Machine().Beep.Listen(end);
        for (const char* key = keys; *key && calculator; ++key) {
            std::int32_t code = *key;
            *key == 'A' ? (code = padkey::F5, calculator->KeyDown(code)) : calculator->KeyPress(code);
        }
        EXPECT_FALSE(calculator) << keys;
    }
    TypedCalculator calculator;
    const auto writing = calculator.Core.Machine().ValueChange.Connect([&] {
        calculator.Core.SetValue(77);
        calculator.Press('?'); // dropped, or it would beep
    });
    EXPECT_EQ(calculator.Type("1+2="), "3 v");
    {
        const auto throwing =
            calculator.Core.Machine().ValueChange.Connect([] { throw std::domain_error("no"); });
        EXPECT_THROW(calculator.Type("cA"), std::domain_error);
    }
    EXPECT_EQ(calculator.Type("c12"), "12"); // and works on
}

} // namespace quillgrid::test
