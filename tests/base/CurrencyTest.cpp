#include "quillgrid/base/Currency.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>

namespace quillgrid {
namespace {

std::string Read(std::string_view text) {
    const auto amount = Currency::FromDecimal(text);
    return amount ? amount->ToText() : "none";
}

TEST(Currency, ReadsDecimalsExactlyAndRoundsHalfToEven) {
    EXPECT_EQ(Read("12.5"), "12.5");
    EXPECT_EQ(Read("-.25"), "-0.25");
    EXPECT_EQ(Read("7."), "7");
    EXPECT_EQ(Read("0.00005"), "0") << "tie, even below";
    EXPECT_EQ(Read("0.00015"), "0.0002") << "tie, even above";
    EXPECT_EQ(Read("0.000050" + std::string(500, '0') + "1"), "0.0001") << "just over the tie";
    EXPECT_EQ(Read("-0.00004"), "0") << "no negative zero";
    EXPECT_EQ(Read(std::string(1000, '0') + "5"), "5");
}

TEST(Currency, RefusesWhatIsNoNumberOrTooLarge) {
    for (const char* text : {"", "-", ".", "1.2.3", "--1", "1e3", "1 2", "12,5"})
        EXPECT_EQ(Read(text), "none") << text;
    EXPECT_EQ(Read("922337203685477.5807"), "922337203685477.5807");
    EXPECT_EQ(Read("922337203685477.58075"), "none");
    EXPECT_EQ(Read("-922337203685477.5808"), "-922337203685477.5808");
    EXPECT_EQ(Read("-922337203685477.5809"), "none");
    EXPECT_EQ(Read(std::string(100'000, '9')), "none");
}

TEST(Currency, RoundsDoublesAtTheirExactValue) {
    // 0.00005 is stored a little above the tie, 0.00015 a little below it, 0.03125 lies exactly on one.
    EXPECT_EQ(Currency::FromDouble(0.00005)->ToText(), "0.0001");
    EXPECT_EQ(Currency::FromDouble(0.00015)->ToText(), "0.0001");
    EXPECT_EQ(Currency::FromDouble(0.03125)->ToText(), "0.0312");
    EXPECT_EQ(Currency::FromDouble(-0.09375)->ToText(), "-0.0938");
    EXPECT_EQ(Currency::FromDouble(5e-324)->ToText(), "0");
    for (const double bad : {std::nan(""), HUGE_VAL, -HUGE_VAL, 922337203685478.0, -1e300}) {
        EXPECT_FALSE(Currency::FromDouble(bad)) << bad;
    }
}

TEST(Currency, RoundsAnyDoubleAsExactArithmeticDoes) {
    // 53 bits times 10000 fit the 64 bits of this type, so that its own rounding is the reference.
    if constexpr (std::numeric_limits<long double>::digits >= 64) {
        std::mt19937_64 random(99);
        for (int round = 0; round < 100'000; ++round) {
            const int exponent = static_cast<int>(random() % 80) - 30;
            const double number = std::ldexp(static_cast<double>(random() >> 11U), exponent - 53);
            const long double exact = std::nearbyint(static_cast<long double>(number) * 10'000.0L);
            const auto amount = Currency::FromDouble(-number);
            ASSERT_EQ(amount.has_value(), exact <= 9'223'372'036'854'775'808.0L) << number;
            if (!amount) continue;
            ASSERT_EQ(static_cast<long double>(amount->Scaled()), -exact) << number;
        }
    }
}

TEST(Currency, ArithmeticDetectsOverflow) {
    const auto highest = Currency::FromScaled(std::numeric_limits<std::int64_t>::max());
    const auto lowest = Currency::FromScaled(std::numeric_limits<std::int64_t>::min());
    const auto smallest = Currency::FromScaled(1);
    EXPECT_FALSE(Currency::Add(highest, smallest));
    EXPECT_FALSE(Currency::Subtract(lowest, smallest));
    EXPECT_EQ(Currency::Add(highest, lowest), Currency::FromScaled(-1));
    EXPECT_EQ(Currency::Subtract(smallest, lowest), std::nullopt);
    EXPECT_FALSE(Currency::Multiply(lowest, *Currency::FromInteger(-1)));
    EXPECT_EQ(Currency::Multiply(lowest, *Currency::FromInteger(1)), lowest);
    EXPECT_EQ(Currency::Multiply(*Currency::FromDecimal("0.005"), *Currency::FromDecimal("0.01")),
              Currency{});
    EXPECT_EQ(Currency::Multiply(*Currency::FromDecimal("-1.5"), *Currency::FromDecimal("2.5")),
              Currency::FromDecimal("-3.75"));
    EXPECT_EQ(Currency::FromDecimal("2.5")->ToInteger(), 2);
    EXPECT_EQ(Currency::FromDecimal("-3.5")->ToInteger(), -4);
    EXPECT_FALSE(Currency::FromInteger(std::numeric_limits<std::int64_t>::min()));
}

} // namespace
} // namespace quillgrid
