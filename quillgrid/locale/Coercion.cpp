#include "quillgrid/locale/Coercion.h"

#include "quillgrid/base/Decimal.h"
#include "quillgrid/base/Text.h"
#include "quillgrid/locale/DateReader.h"
#include "quillgrid/locale/Format.h"
#include "quillgrid/locale/NumberText.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillgrid {

namespace {

std::optional<std::int32_t> NarrowToLong(std::int64_t number) {
    using Limits = std::numeric_limits<std::int32_t>;
    if (number < Limits::min() || number > Limits::max()) return std::nullopt;
    return static_cast<std::int32_t>(number);
}

/// Half to even on the written digits: a text has no binary value that could stand in for them.
std::optional<std::int32_t> RoundPlainText(std::string_view plain) {
    constexpr std::int64_t beyondLong = 10'000'000'000;
    const bool negative = plain.substr(0, 1) == "-";
    if (negative) plain.remove_prefix(1);
    const std::size_t point = std::min(plain.find('.'), plain.size());
    std::int64_t number = 0;
    for (const char digit : plain.substr(0, point))
        number = std::min(number * 10 + (digit - '0'), beyondLong);
    const std::string_view fraction = plain.substr(std::min(point + 1, plain.size()));
    const bool half = !fraction.empty() && fraction[0] == '5' &&
                      fraction.find_first_not_of('0', 1) == std::string_view::npos;
    const bool up = half ? number % 2 != 0 : !fraction.empty() && fraction[0] >= '5';
    number += up ? 1 : 0;
    return NarrowToLong(negative ? -number : number);
}

/// The number of every type that is neither text nor Currency.
std::optional<double> SimpleNumber(const Variant& value) {
    if (const auto* number = value.Get<double>()) return *number;
    if (const auto* number = value.Get<std::int32_t>()) return *number;
    if (const auto* number = value.Get<std::int16_t>()) return *number;
    if (const auto* boolean = value.Get<bool>()) return *boolean ? -1.0 : 0.0;
    if (const auto* date = value.Get<DateTime>()) return ToSerial(*date);
    return std::nullopt;
}

std::optional<bool> BooleanFromText(std::string_view text, const Locale& locale) {
    const std::string_view word = TrimBlanks(text);
    if (EqualIgnoreCase(word, "true")) return true;
    if (EqualIgnoreCase(word, "false")) return false;
    if (!word.empty() && EqualIgnoreCase(word, locale.True)) return true;
    if (!word.empty() && EqualIgnoreCase(word, locale.False)) return false;
    const std::optional<double> number = NumberFromText(word, locale);
    return number ? std::optional(*number != 0) : std::nullopt;
}

} // namespace

std::optional<double> NumberFromText(std::string_view text, const Locale& locale) {
    const std::optional<std::string> plain = PlainNumberText(text, locale);
    return plain ? DoubleFromDecimal(*plain) : std::nullopt;
}

std::optional<std::int32_t> ToLong(const Variant& value, const Locale& locale) {
    if (const auto* text = value.Get<std::string>()) {
        const std::optional<std::string> plain = PlainNumberText(*text, locale);
        return plain ? RoundPlainText(*plain) : std::nullopt;
    }
    if (const auto* amount = value.Get<Currency>()) return NarrowToLong(amount->ToInteger());
    const std::optional<double> number = SimpleNumber(value);
    return number ? RoundToLong(*number) : std::nullopt;
}

std::optional<Currency> ToCurrency(const Variant& value, const Locale& locale) {
    if (const auto* text = value.Get<std::string>()) {
        const std::optional<std::string> plain = PlainNumberText(*text, locale);
        return plain ? Currency::FromDecimal(*plain) : std::nullopt;
    }
    if (const auto* amount = value.Get<Currency>()) return *amount;
    const std::optional<double> number = SimpleNumber(value);
    return number ? Currency::FromDouble(*number) : std::nullopt;
}

std::optional<double> ToDouble(const Variant& value, const Locale& locale) {
    if (const auto* text = value.Get<std::string>()) return NumberFromText(*text, locale);
    if (const auto* amount = value.Get<Currency>()) return amount->ToDouble();
    return SimpleNumber(value);
}

std::optional<DateTime> ToDateTime(const Variant& value, const Locale& locale) {
    if (const auto* date = value.Get<DateTime>()) return *date;
    if (const auto* text = value.Get<std::string>()) {
        if (const auto recognised = RecogniseDateTime(*text, locale)) return recognised->Value;
    }
    const std::optional<double> serial = ToDouble(value, locale);
    return serial ? FromSerial(*serial) : std::nullopt;
}

std::optional<bool> ToBoolean(const Variant& value, const Locale& locale) {
    if (const auto* boolean = value.Get<bool>()) return *boolean;
    if (const auto* text = value.Get<std::string>()) return BooleanFromText(*text, locale);
    const std::optional<double> number = ToDouble(value, locale);
    if (!number || std::isnan(*number)) return std::nullopt;
    return *number != 0;
}

std::string ToText(const Variant& value, const Locale& locale) {
    if (const auto* text = value.Get<std::string>()) return *text;
    if (const auto* boolean = value.Get<bool>()) return *boolean ? locale.True : locale.False;
    const bool date = value.Kind() == Variant::Type::Date;
    return Format(value, date ? "General Date" : "General Number", locale);
}

} // namespace quillgrid
