#include "quillgrid/base/Decimal.h"

#include <gtest/gtest.h>

#include <algorithm>
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

TEST(Decimal, ReadsLongTextsToTheNearestDouble) {
    std::mt19937 random(1);
    for (int round = 0; round < 2'000; ++round) {
        std::string text = random() % 2 == 0 ? "-" : "";
        const std::size_t point = random() % 40;
        for (std::size_t i = 0, digits = 1 + random() % 900; i < digits; ++i) {
            if (i == point) text += '.';
            text += static_cast<char>('0' + random() % 10);
        }
        if (text.find('.') == std::string::npos) text.resize(std::min<std::size_t>(text.size(), 300));
        ASSERT_EQ(DoubleFromDecimal(text), std::strtod(text.c_str(), nullptr)) << text;
    }
    // One digit far behind decides between two neighbours.
    const std::string tie = "9007199254740993." + std::string(800, '0');
    EXPECT_EQ(DoubleFromDecimal(tie), 9007199254740992.0);
    EXPECT_EQ(DoubleFromDecimal(tie + "1"), 9007199254740994.0);
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
    EXPECT_EQ(PlainDecimal(-1e-7), "-0.0000001");
    EXPECT_EQ(PlainDecimal(1e23), "1" + std::string(23, '0'))
        << "shortest digits, not the exact binary value";
    EXPECT_EQ(PlainDecimal(12345678.5), "12345678.5");
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
