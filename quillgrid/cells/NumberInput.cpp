#include "quillgrid/cells/NumberInput.h"

#include "quillgrid/base/Decimal.h"
#include "quillgrid/base/Text.h"
#include "quillgrid/cells/InputNormaliser.h"
#include "quillgrid/cells/InputText.h"
#include "quillgrid/locale/Coercion.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace quillgrid {

namespace {

InputShape IntegerShape() {
    return {};
}

InputShape DecimalShape(const InputContext& context) {
    return {.Separator = '.', .MostSeparators = 1, .SeparatorCharacters = context.Separators.Number};
}

bool IsDigit(char character) {
    return character >= '0' && character <= '9';
}

/// A lone minus or point, or nothing at all, reads as 0.
bool HasDigits(std::string_view plain) {
    return std::any_of(plain.begin(), plain.end(), IsDigit);
}

std::optional<std::int32_t> ReadLong(std::string_view plain) {
    if (!HasDigits(plain)) return 0;
    std::int32_t number = 0;
    const auto result = std::from_chars(plain.data(), plain.data() + plain.size(), number);
    if (result.ec != std::errc()) return std::nullopt;
    return number;
}

std::optional<Currency> ReadCurrency(std::string_view plain) {
    if (!HasDigits(plain)) return Currency();
    return Currency::FromDecimal(plain);
}

std::optional<double> ReadDouble(std::string_view plain) {
    if (!HasDigits(plain)) return 0.0;
    return DoubleFromDecimal(plain);
}

} // namespace

std::optional<std::int32_t> LongFromInput(const Variant& value, const InputContext& context) {
    if (value.IsNumber()) return ToLong(value, context.UserLocale);
    return WithInputText(value, context.UserLocale, [](std::string_view text) {
        return ReadLong(InputNormaliser(text, IntegerShape()).Text());
    });
}

std::optional<Currency> CurrencyFromInput(const Variant& value, const InputContext& context) {
    if (value.IsNumber()) return ToCurrency(value, context.UserLocale);
    return WithInputText(value, context.UserLocale, [&](std::string_view text) {
        return ReadCurrency(InputNormaliser(text, DecimalShape(context)).Text());
    });
}

std::optional<double> DoubleFromInput(const Variant& value, const InputContext& context) {
    const auto typed = [&](std::string_view text) {
        return ReadDouble(InputNormaliser(text, DecimalShape(context)).Text());
    };
    const auto number = value.IsNumber() ? ToDouble(value, context.UserLocale)
                                         : WithInputText(value, context.UserLocale, typed);
    if (!number || !std::isfinite(*number)) return std::nullopt;
    return *number + 0.0;
}

} // namespace quillgrid
