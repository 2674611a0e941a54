#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <string>
#include <string_view>

namespace quillgrid {

class CurrencyConverter;

/// What a cell says about the look of its value. Views into the cell.
struct DisplayRules {
    ValidationRuleConstants Rule = qgvrNone;
    std::string_view Format{}; ///< empty: the plain form of the rule
    std::string_view Unit{};   ///< currency code beside format "Currency", else appended after a blank
};

/// A value as it is shown: by the format with the unit, else by the rule; rule none and rules without a form
/// of their own give the value as text, "" for Null. `currencies` may be null: the locale's symbol then
/// stays.
std::string DisplayText(const Variant& value, const DisplayRules& rules, const Locale& locale,
                        const CurrencyConverter* currencies);

} // namespace quillgrid
