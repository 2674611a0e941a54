#include "quillgrid/pads/CalculatorNumber.h"

#include "quillgrid/base/Decimal.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/pads/CalculatorText.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace quillgrid {

namespace {

__extension__ using Wide = unsigned __int128; // ISO C++ has no type of 128 bits

std::uint64_t MagnitudeOf(Currency amount) {
    const auto bits = static_cast<std::uint64_t>(amount.Scaled());
    return amount.Scaled() < 0 ? 0 - bits : bits;
}

std::optional<Currency> Divide(Currency left, Currency right) {
    const Wide divisor = MagnitudeOf(right);
    if (divisor == 0) return std::nullopt;
    const Wide dividend = static_cast<Wide>(MagnitudeOf(left)) * static_cast<Wide>(Currency::Scale);
    Wide quotient = dividend / divisor;
    const Wide twiceRest = dividend % divisor * 2;
    if (twiceRest > divisor || (twiceRest == divisor && quotient % 2 != 0)) ++quotient;
    if (quotient > static_cast<Wide>(std::numeric_limits<std::int64_t>::max())) return std::nullopt;
    const auto scaled = static_cast<std::int64_t>(quotient);
    return Currency::FromScaled((left.Scaled() < 0) != (right.Scaled() < 0) ? -scaled : scaled);
}

std::optional<Currency> Compute(char operation, Currency left, Currency right) {
    switch (operation) {
    case '+': return Currency::Add(left, right);
    case '-': return Currency::Subtract(left, right);
    case '*': return Currency::Multiply(left, right);
    case '/': return Divide(left, right);
    default: return Currency{};
    }
}

std::optional<double> Compute(char operation, double left, double right) {
    switch (operation) {
    case '+': return left + right;
    case '-': return left - right;
    case '*': return left * right;
    case '/': return right == 0 ? std::nullopt : std::optional(left / right);
    default: return 0.0;
    }
}

/// A result is taken over by its text, which must read back: rounding its digits may leave the range.
bool IsWritable(double number) {
    return std::isfinite(number) && DoubleFromDecimal(PlainForm(number)).has_value();
}

} // namespace

std::optional<CalculatorNumber> CalculatorNumber::Read(std::string_view entry, Precision precision) {
    const std::string plain = PlainForm(entry);
    if (precision == Precision::Currency) {
        const auto amount = Currency::FromDecimal(plain);
        return amount ? std::optional(CalculatorNumber(*amount)) : std::nullopt;
    }
    const auto number = DoubleFromDecimal(plain);
    return number ? std::optional(CalculatorNumber(*number)) : std::nullopt;
}

CalculatorNumber CalculatorNumber::From(const Variant& value, Precision precision, const Locale& locale) {
    if (precision == Precision::Currency)
        return CalculatorNumber(ToCurrency(value, locale).value_or(Currency{}));
    const double number = quillgrid::ToDouble(value, locale).value_or(0);
    return CalculatorNumber(IsWritable(number) ? number : 0.0);
}

std::optional<CalculatorNumber> CalculatorNumber::Calculate(char operation, const CalculatorNumber& left,
                                                            const CalculatorNumber& right) {
    const auto* leftAmount = std::get_if<Currency>(&left.number_);
    const auto* rightAmount = std::get_if<Currency>(&right.number_);
    if (leftAmount && rightAmount) {
        const auto amount = Compute(operation, *leftAmount, *rightAmount);
        return amount ? std::optional(CalculatorNumber(*amount)) : std::nullopt;
    }
    const auto number = Compute(operation, left.ToDouble(), right.ToDouble());
    if (!number || !IsWritable(*number)) return std::nullopt;
    return CalculatorNumber(*number);
}

std::string CalculatorNumber::ToText() const {
    const auto* amount = std::get_if<Currency>(&number_);
    return amount ? PlainForm(amount->ToText()) : PlainForm(std::get<double>(number_));
}

Variant CalculatorNumber::ToVariant() const {
    const auto* amount = std::get_if<Currency>(&number_);
    return amount ? Variant(*amount) : Variant(std::get<double>(number_));
}

double CalculatorNumber::ToDouble() const {
    const auto* amount = std::get_if<Currency>(&number_);
    return amount ? amount->ToDouble() : std::get<double>(number_);
}

bool CalculatorNumber::IsOutside(const Variant& low, const Variant& high, const Locale& locale) const {
    return IsBelow(low, locale) || IsAbove(high, locale);
}

bool CalculatorNumber::IsBelow(const Variant& bound, const Locale& locale) const {
    const auto* amount = std::get_if<Currency>(&number_);
    if (const auto* exact = bound.Get<Currency>(); exact && amount) return *amount < *exact;
    const auto number = quillgrid::ToDouble(bound, locale);
    return number && ToDouble() < *number;
}

bool CalculatorNumber::IsAbove(const Variant& bound, const Locale& locale) const {
    const auto* amount = std::get_if<Currency>(&number_);
    if (const auto* exact = bound.Get<Currency>(); exact && amount) return *amount > *exact;
    const auto number = quillgrid::ToDouble(bound, locale);
    return number && ToDouble() > *number;
}

} // namespace quillgrid
