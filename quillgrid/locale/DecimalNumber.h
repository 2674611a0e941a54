// Numbers as decimal digits: formats round and scale what a person would see written, not its binary
// neighbour.
#pragma once

#include "quillgrid/base/Currency.h"

#include <cstdint>

namespace quillgrid {

/// A finite decimal number of up to 20 significant digits. Zero has no digits and no sign.
class DecimalNumber {
public:
    DecimalNumber() = default;
    /// The shortest digits of a finite number.
    static DecimalNumber FromDouble(double number);
    /// All four decimals, exactly.
    static DecimalNumber FromCurrency(Currency amount);
    static DecimalNumber FromInteger(std::int64_t number);

    bool IsZero() const { return count_ == 0; }
    bool IsNegative() const { return negative_; }
    /// Digits to the left of the point: 0 when the absolute value is below 1.
    std::int64_t IntegerDigits() const { return point_ > 0 ? point_ : 0; }
    /// Digits to the right of the point up to the last that is not 0.
    std::int64_t FractionDigits() const { return count_ > point_ ? count_ - point_ : 0; }
    /// The power of ten of the first digit; not for zero.
    std::int64_t LeadingPower() const { return point_ - 1; }
    /// The digit of weight 10^power, '0' outside the significant ones.
    char DigitAt(std::int64_t power) const {
        const std::int64_t index = point_ - 1 - power;
        return index >= 0 && index < count_ ? digits_[index] : '0';
    }

    void ClearSign() { negative_ = false; }
    /// Multiplies by 10^power.
    void Shift(std::int64_t power);
    /// Half away from zero; a negative count rounds left of the point.
    void RoundToDecimals(std::int64_t decimals) { RoundAfter(point_ + decimals); }
    void RoundToDigits(std::int64_t digits) { RoundAfter(digits); }

private:
    void RoundAfter(std::int64_t kept);
    void IncrementLast();
    void Trim();

    // The value is 0.d1d2d3... × 10^point_.
    char digits_[20] = {};
    int count_ = 0;
    bool negative_ = false;
    std::int64_t point_ = 0;
};

} // namespace quillgrid
