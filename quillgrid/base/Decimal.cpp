#include "quillgrid/base/Decimal.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace quillgrid {

namespace {

bool IsPlainDecimal(std::string_view text) {
    if (!text.empty() && text.front() == '-') text.remove_prefix(1);
    bool digits = false;
    bool point = false;
    for (const char c : text) {
        const bool isDigit = c >= '0' && c <= '9';
        if (!isDigit && (c != '.' || point)) return false;
        digits = digits || isDigit;
        point = point || c == '.';
    }
    return digits;
}

/// Of a number that from_chars found out of range: whether it is too small rather than too large.
bool IsBelowOne(std::string_view text) {
    const std::string_view whole = text.substr(0, text.find('.'));
    return std::none_of(whole.begin(), whole.end(), [](char c) { return c >= '1' && c <= '9'; });
}

} // namespace

std::optional<double> DoubleFromDecimal(std::string_view text) {
    if (!IsPlainDecimal(text)) return std::nullopt;
    double number = 0;
    const auto result =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    if (result.ec == std::errc()) return number;
    if (IsBelowOne(text)) return 0.0;
    return std::nullopt;
}

ShortestDigits DigitsOf(double number) {
    ShortestDigits digits;
    digits.Negative = std::signbit(number);
    char buffer[32];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, std::abs(number), std::chars_format::scientific).ptr;
    const char* const exponent = std::find(buffer, end, 'e');
    for (const char* c = buffer; c != exponent; ++c) {
        if (*c >= '0' && *c <= '9') digits.Digits[digits.Count++] = *c;
    }
    if (exponent != end) {
        const char* const firstDigit = exponent + (exponent[1] == '+' ? 2 : 1);
        std::from_chars(firstDigit, end, digits.Exponent);
    }
    while (digits.Count > 1 && digits.Digits[digits.Count - 1] == '0')
        digits.Digits[--digits.Count] = '\0';
    return digits;
}

std::string PlainDecimal(double number) {
    if (std::isnan(number)) return "nan";
    if (std::isinf(number)) return number < 0 ? "-inf" : "inf";
    if (number == 0) return "0";
    const ShortestDigits shortest = DigitsOf(number);
    const std::string_view digits(shortest.Digits, static_cast<std::size_t>(shortest.Count));
    std::string text = shortest.Negative ? "-" : "";
    if (shortest.Exponent < 0) {
        text.append("0.").append(static_cast<std::size_t>(-shortest.Exponent - 1), '0').append(digits);
        return text;
    }
    const auto whole = static_cast<std::size_t>(shortest.Exponent) + 1;
    text.append(digits.substr(0, whole));
    if (whole > digits.size()) text.append(whole - digits.size(), '0');
    if (whole < digits.size()) text.append(".").append(digits.substr(whole));
    return text;
}

std::optional<std::int32_t> RoundToLong(double number) {
    // A remainder of 32-bit numbers is exact in a double, so that ties are true ties.
    if (std::isnan(number) || std::abs(number) > 4.0e9) return std::nullopt;
    double rounded = std::floor(number);
    const double rest = number - rounded;
    if (rest > 0.5 || (rest == 0.5 && std::fmod(rounded, 2.0) != 0)) rounded += 1.0;
    if (rounded < std::numeric_limits<std::int32_t>::min() ||
        rounded > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    return static_cast<std::int32_t>(rounded);
}

} // namespace quillgrid
