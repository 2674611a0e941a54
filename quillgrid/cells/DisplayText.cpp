#include "quillgrid/cells/DisplayText.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/locale/Format.h"
#include "quillgrid/platform/CurrencyConverter.h"

namespace quillgrid {

namespace {

/// Empty where the value is shown as it is.
std::string_view PlainFormat(ValidationRuleConstants rule) {
    switch (rule) {
    case qgvrInteger: return "0";
    case qgvrCurrency:
    case qgvrEuro: return "Fixed";
    case qgvrDouble: return "#0";
    case qgvrDate: return "Short Date";
    case qgvrTime: return "Long Time";
    default: return "";
    }
}

void ReplaceSymbol(std::string& text, std::string_view symbol, const std::string& replacement) {
    if (symbol.empty() || replacement.empty()) return;
    std::size_t length = 0;
    const std::size_t position = FindIgnoreCase(text, symbol, &length);
    if (position != std::string::npos) text.replace(position, length, replacement);
}

std::string MoneyText(const Variant& value, std::string_view currencyCode, const Locale& locale,
                      const CurrencyConverter* currencies) {
    std::string text = Format(value, "Currency", locale);
    if (currencies && !currencyCode.empty()) {
        ReplaceSymbol(text, locale.CurrencySymbol, currencies->Symbol(currencyCode));
    }
    return text;
}

std::string FormattedText(const Variant& value, const DisplayRules& rules, const Locale& locale) {
    std::string text = Format(value, rules.Format, locale);
    if (!text.empty() && !rules.Unit.empty()) text.append(" ").append(rules.Unit);
    return text;
}

} // namespace

std::string DisplayText(const Variant& value, const DisplayRules& rules, const Locale& locale,
                        const CurrencyConverter* currencies) {
    if (EqualIgnoreCase(rules.Format, "Currency")) return MoneyText(value, rules.Unit, locale, currencies);
    if (!rules.Format.empty()) return FormattedText(value, rules, locale);
    const std::string_view plain = PlainFormat(rules.Rule);
    return plain.empty() ? ToText(value, locale) : Format(value, plain, locale);
}

} // namespace quillgrid
