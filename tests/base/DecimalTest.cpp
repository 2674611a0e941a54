#include "quillgrid/base/Decimal.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <random>
#include <string>

namespace quillgrid {
namespace {

TEST(Decimal, ReadsOnlyPlainDecimals) {
    for (const char* text : {"", "-", ".", "+1", "1e5", "0x10", "nan", "inf", "1.2.3", " 1", "1 "}) {
        EXPECT_FALSE(DoubleFromDecimal(text)) << text;
    }
    EXPECT_EQ(DoubleFromDecimal("-.5"), -0.5);
    EXPECT_EQ(DoubleFromDecimal("2."), 2.0);
    EXPECT_FALSE(DoubleFromDecimal("1" + std::string(400, '0')));
    EXPECT_EQ(DoubleFromDecimal("0." + std::string(400, '0') + "1"), 0.0)
        << "too small is zero, not an error";
    EXPECT_EQ(DoubleFromDecimal(std::string(100'000, '0') + "1.5"), 1.5);
}

TEST(Decimal, AnyDoubleSurvivesItsPlainText) {
    std::mt19937_64 random(4711);
    for (int i = 0; i < 20'000; ++i) {
        const auto number = std::bit_cast<double>(random());
        if (!std::isfinite(number)) continue;
        const std::string text = PlainDecimal(number);
        ASSERT_EQ(text.find('e'), std::string::npos);
        ASSERT_EQ(std::strtod(text.c_str(), nullptr), number) << text;
        ASSERT_EQ(DoubleFromDecimal(text), number) << text;
    }
}

TEST(Decimal, DigitsAreTheShortest) {
    const ShortestDigits digits = DigitsOf(-0.0125);
    EXPECT_EQ(std::string(digits.Digits), "125");
    EXPECT_EQ(digits.Exponent, -2);
    EXPECT_TRUE(digits.Negative);
    EXPECT_EQ(std::string(DigitsOf(0).Digits), "0");
    EXPECT_EQ(std::string(DigitsOf(1e22).Digits), "1");
    EXPECT_EQ(DigitsOf(1e22).Exponent, 22);
    EXPECT_EQ(PlainDecimal(0.1), "0.1");
    EXPECT_EQ(PlainDecimal(-0.0), "0");
}

TEST(Decimal, RoundsHalfToEvenWithin32Bits) {
    EXPECT_EQ(RoundToLong(2.5), 2);
    EXPECT_EQ(RoundToLong(-3.5), -4);
    EXPECT_EQ(RoundToLong(-2.5), -2);
    EXPECT_EQ(RoundToLong(2147483647.4), 2147483647);
    EXPECT_FALSE(RoundToLong(2147483647.5));
    EXPECT_EQ(RoundToLong(-2147483648.5), -2147483647 - 1);
    EXPECT_FALSE(RoundToLong(std::nan("")));
    EXPECT_FALSE(RoundToLong(-HUGE_VAL));
}

} // namespace
} // namespace quillgrid
