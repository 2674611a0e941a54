#include "quillgrid/locale/DecimalNumber.h"

#include "quillgrid/base/Decimal.h"

#include <algorithm>

namespace quillgrid {

DecimalNumber DecimalNumber::FromDouble(double number) {
    const ShortestDigits shortest = DigitsOf(number);
    DecimalNumber result;
    result.count_ = shortest.Count;
    std::copy_n(shortest.Digits, shortest.Count, result.digits_);
    result.point_ = std::int64_t{shortest.Exponent} + 1;
    result.negative_ = shortest.Negative;
    result.Trim();
    return result;
}

DecimalNumber DecimalNumber::FromInteger(std::int64_t number) {
    DecimalNumber result;
    // Unsigned, because the lowest number has no positive counterpart.
    auto rest = number < 0 ? 0U - static_cast<std::uint64_t>(number) : static_cast<std::uint64_t>(number);
    for (; rest != 0; rest /= 10)
        result.digits_[result.count_++] = static_cast<char>('0' + rest % 10);
    std::reverse(result.digits_, result.digits_ + result.count_);
    result.point_ = result.count_;
    result.negative_ = number < 0;
    result.Trim();
    return result;
}

DecimalNumber DecimalNumber::FromCurrency(Currency amount) {
    constexpr int currencyDecimals = 4;
    DecimalNumber result = FromInteger(amount.Scaled());
    result.Shift(-currencyDecimals);
    return result;
}

void DecimalNumber::Shift(std::int64_t power) {
    if (!IsZero()) point_ += power;
}

void DecimalNumber::RoundAfter(std::int64_t kept) {
    if (kept >= count_) return;
    const bool up = kept >= 0 && digits_[kept] >= '5';
    count_ = static_cast<int>(std::max<std::int64_t>(kept, 0));
    if (up) IncrementLast();
    Trim();
}

void DecimalNumber::IncrementLast() {
    while (count_ > 0 && digits_[count_ - 1] == '9')
        --count_;
    if (count_ > 0) {
        ++digits_[count_ - 1];
        return;
    }
    digits_[0] = '1';
    count_ = 1;
    ++point_;
}

void DecimalNumber::Trim() {
    while (count_ > 0 && digits_[count_ - 1] == '0')
        --count_;
    if (count_ > 0) return;
    point_ = 0;
    negative_ = false;
}

} // namespace quillgrid
