#include "quillgrid/pads/CalculatorText.h"

#include "quillgrid/locale/DecimalNumber.h"

#include <algorithm>
#include <cstdint>

namespace quillgrid {

namespace {

constexpr std::int64_t DigitsOfDouble = 15;

std::string_view WithoutLeadingZeros(std::string_view digits) {
    const auto first = digits.find_first_not_of('0');
    return first == std::string_view::npos ? std::string_view() : digits.substr(first);
}

std::string_view WithoutTrailingZeros(std::string_view digits) {
    return digits.substr(0, digits.find_last_not_of('0') + 1);
}

} // namespace

std::string PlainForm(std::string_view text) {
    const bool negative = !text.empty() && text.front() == '-';
    if (negative) text.remove_prefix(1);
    const auto point = std::min(text.find('.'), text.size());
    const std::string_view whole = WithoutLeadingZeros(text.substr(0, point));
    const std::string_view fraction =
        point < text.size() ? WithoutTrailingZeros(text.substr(point + 1)) : std::string_view();
    if (whole.empty() && fraction.empty()) return "0";
    std::string plain = negative ? "-" : "";
    plain.append(whole);
    if (!fraction.empty()) plain.append(".").append(fraction);
    return plain;
}

std::string PlainForm(double number) {
    DecimalNumber decimal = DecimalNumber::FromDouble(number);
    decimal.RoundToDigits(DigitsOfDouble);
    if (decimal.IsZero()) return "0";
    std::string plain = decimal.IsNegative() ? "-" : "";
    for (std::int64_t power = decimal.IntegerDigits() - 1; power >= 0; --power)
        plain.push_back(decimal.DigitAt(power));
    if (decimal.FractionDigits() > 0) plain.push_back('.');
    for (std::int64_t power = -1; power >= -decimal.FractionDigits(); --power)
        plain.push_back(decimal.DigitAt(power));
    return plain;
}

} // namespace quillgrid
