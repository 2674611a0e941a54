#include "quillgrid/base/Currency.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace quillgrid {

namespace {

__extension__ using Wide = unsigned __int128; // ISO C++ has no type of 128 bits

constexpr std::int64_t Highest = std::numeric_limits<std::int64_t>::max();
constexpr Wide LowestMagnitude = static_cast<Wide>(Highest) + 1;

std::optional<Currency> FromMagnitude(Wide magnitude, bool negative) {
    if (magnitude > (negative ? LowestMagnitude : static_cast<Wide>(Highest))) return std::nullopt;
    const auto bits = static_cast<std::uint64_t>(magnitude);
    // Negating in unsigned arithmetic reaches the lowest value without overflow.
    return Currency::FromScaled(static_cast<std::int64_t>(negative ? 0 - bits : bits));
}

Wide MagnitudeOf(Currency amount) {
    const auto bits = static_cast<std::uint64_t>(amount.Scaled());
    return amount.Scaled() < 0 ? 0 - bits : bits;
}

/// `dividend` / `divisor` rounded half to even.
Wide DivideToEven(Wide dividend, Wide divisor) {
    const Wide quotient = dividend / divisor;
    const Wide rest = dividend % divisor;
    const Wide half = divisor / 2;
    const bool up = rest > half || (rest == half && divisor % 2 == 0 && quotient % 2 != 0);
    return up ? quotient + 1 : quotient;
}

/// Gathers the decimal digits of a number, four of them behind the point, and what follows for rounding.
class DecimalReader {
public:
    void Add(char digit) {
        const unsigned value = static_cast<unsigned>(digit - '0');
        if (decimals_ == 4) {
            Round(value);
        } else {
            if (magnitude_ <= LowestMagnitude) magnitude_ = magnitude_ * 10 + value;
            if (afterPoint_) ++decimals_;
        }
        any_ = true;
    }
    bool Point() { return !std::exchange(afterPoint_, true); }

    std::optional<Currency> Result(bool negative) const {
        if (!any_) return std::nullopt;
        Wide magnitude = magnitude_;
        for (int i = decimals_; i < 4 && magnitude <= LowestMagnitude; ++i)
            magnitude *= 10;
        const bool up = next_ > 5 || (next_ == 5 && (sticky_ || magnitude % 2 != 0));
        return FromMagnitude(up ? magnitude + 1 : magnitude, negative);
    }

private:
    void Round(unsigned digit) {
        if (!rounding_) {
            next_ = digit;
            rounding_ = true;
        } else if (digit != 0) {
            sticky_ = true;
        }
    }

    Wide magnitude_ = 0;
    int decimals_ = 0;
    unsigned next_ = 0; ///< the fifth decimal
    bool rounding_ = false;
    bool sticky_ = false; ///< a digit other than 0 behind the fifth decimal
    bool afterPoint_ = false;
    bool any_ = false;
};

} // namespace

std::optional<Currency> Currency::FromInteger(std::int64_t number) {
    if (number > Highest / Scale || number < -(Highest / Scale)) return std::nullopt;
    return FromScaled(number * Scale);
}

std::optional<Currency> Currency::FromDouble(double number) {
    if (!(std::abs(number) < 1.0e15)) return std::nullopt;
    int exponent = 0;
    const double fraction = std::frexp(std::abs(number), &exponent);
    const Wide scaled = static_cast<Wide>(std::ldexp(fraction, 53)) * static_cast<Wide>(Scale);
    const int shift = 53 - exponent; // at least 3, because the number is below 2^50
    if (shift > 120) return Currency{};
    return FromMagnitude(DivideToEven(scaled, static_cast<Wide>(1) << shift), number < 0);
}

std::optional<Currency> Currency::FromDecimal(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    if (negative) text.remove_prefix(1);
    DecimalReader reader;
    for (const char c : text) {
        if (c >= '0' && c <= '9') {
            reader.Add(c);
        } else if (c != '.' || !reader.Point()) {
            return std::nullopt;
        }
    }
    return reader.Result(negative);
}

std::int64_t Currency::ToInteger() const {
    const auto whole = static_cast<std::int64_t>(DivideToEven(MagnitudeOf(*this), static_cast<Wide>(Scale)));
    return scaled_ < 0 ? -whole : whole;
}

std::string Currency::ToText() const {
    const auto magnitude = static_cast<std::uint64_t>(MagnitudeOf(*this));
    char buffer[32];
    char* end = buffer;
    if (scaled_ < 0) *end++ = '-';
    end = std::to_chars(end, buffer + sizeof buffer, magnitude / static_cast<std::uint64_t>(Scale)).ptr;
    auto decimals = static_cast<unsigned>(magnitude % static_cast<std::uint64_t>(Scale));
    if (decimals != 0) *end++ = '.';
    for (unsigned unit = 1000; decimals != 0; unit /= 10) {
        *end++ = static_cast<char>('0' + decimals / unit);
        decimals %= unit;
    }
    return {buffer, end};
}

std::optional<Currency> Currency::Add(Currency left, Currency right) {
    const bool overflows = right.scaled_ > 0
                               ? left.scaled_ > Highest - right.scaled_
                               : left.scaled_ < std::numeric_limits<std::int64_t>::min() - right.scaled_;
    if (overflows) return std::nullopt;
    return FromScaled(left.scaled_ + right.scaled_);
}

std::optional<Currency> Currency::Subtract(Currency left, Currency right) {
    const bool overflows = right.scaled_ < 0
                               ? left.scaled_ > Highest + right.scaled_
                               : left.scaled_ < std::numeric_limits<std::int64_t>::min() + right.scaled_;
    if (overflows) return std::nullopt;
    return FromScaled(left.scaled_ - right.scaled_);
}

std::optional<Currency> Currency::Multiply(Currency left, Currency right) {
    const bool negative = (left.scaled_ < 0) != (right.scaled_ < 0);
    return FromMagnitude(DivideToEven(MagnitudeOf(left) * MagnitudeOf(right), static_cast<Wide>(Scale)),
                         negative);
}

} // namespace quillgrid
