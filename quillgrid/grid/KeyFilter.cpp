#include "quillgrid/grid/KeyFilter.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/Coercion.h"

namespace quillgrid {

namespace {

constexpr const char* Digits = "0123456789";

std::string WithMinus(const Cell& cell, const Locale& locale, const std::string& filter) {
    const auto least = ToDouble(cell.Min(), locale);
    return least && *least < 0 ? "-" + filter : filter;
}

} // namespace

std::string KeyFilterOf(const Cell& cell, const InputSeparators& separators, const Locale& locale) {
    const auto digitsAnd = [](std::string_view marks) { return std::string(Digits).append(marks); };
    switch (cell.ValidationRule()) {
    case qgvrInteger: return WithMinus(cell, locale, Digits);
    case qgvrCurrency:
    case qgvrEuro:
    case qgvrDouble: return WithMinus(cell, locale, digitsAnd(separators.Number));
    case qgvrDate: return digitsAnd(separators.Date);
    case qgvrTime: return digitsAnd(separators.Time);
    default: return cell.Charlist();
    }
}

char32_t CaseOf(char32_t character, CharCaseConstants rule, std::string_view before) {
    switch (rule) {
    case qgccUpper: return ToUpper(character);
    case qgccLower: return ToLower(character);
    case qgccUpperFirst: return before.empty() ? ToUpper(character) : character;
    case qgccNice: return before.empty() || before.ends_with(' ') ? ToUpper(character) : character;
    default: return character;
    }
}

} // namespace quillgrid
