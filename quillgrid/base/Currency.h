#pragma once

#include "quillgrid/base/Export.h"

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillgrid {

/// Money: a 64-bit fixed-point number with four decimals, -922337203685477.5808 to 922337203685477.5807.
/// Every conversion rounds half to even at the fourth decimal; a result beyond the range is no value.
class QUILLGRID_EXPORT Currency {
public:
    static constexpr std::int64_t Scale = 10'000;

    constexpr Currency() = default;

    /// The value `scaled` / 10000.
    static constexpr Currency FromScaled(std::int64_t scaled) { return Currency{scaled}; }
    static std::optional<Currency> FromInteger(std::int64_t number);
    /// Rounds the exact binary value of `number`; nothing for NaN, infinity and values out of range.
    static std::optional<Currency> FromDouble(double number);
    /// Reads "[-]digits[.digits]" (either digit run may be empty, not both); nothing when `text` is not of
    /// that form or out of range. Linear in the length of `text`, no allocation.
    static std::optional<Currency> FromDecimal(std::string_view text);

    constexpr std::int64_t Scaled() const { return scaled_; }
    double ToDouble() const { return static_cast<double>(scaled_) / static_cast<double>(Scale); }
    /// Rounded half to even to a whole number; always representable.
    std::int64_t ToInteger() const;
    /// Plain decimal with "." and no trailing zeros: "12.5", "-0.0001", "0".
    std::string ToText() const;

    static std::optional<Currency> Add(Currency left, Currency right);
    static std::optional<Currency> Subtract(Currency left, Currency right);
    /// The product rounded half to even to four decimals.
    static std::optional<Currency> Multiply(Currency left, Currency right);

    friend constexpr bool operator==(Currency, Currency) = default;
    friend constexpr std::strong_ordering operator<=>(Currency left, Currency right) {
        return left.scaled_ <=> right.scaled_;
    }

private:
    constexpr explicit Currency(std::int64_t scaled) : scaled_(scaled) {}

    std::int64_t scaled_ = 0;
};

} // namespace quillgrid
