#include "quillgrid/cells/BooleanInput.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/resources/StringTable.h"

#include <cmath>

namespace quillgrid {

namespace {

constexpr LanguageConstants Languages[] = {qglgGerman, qglgEnglish, qglgFrench, qglgItalian, qglgSpanish};
constexpr std::int32_t YesNumber = 1;
constexpr std::int32_t NoNumber = 2;

bool IsStoredWord(std::string_view text, std::int32_t number) {
    for (const LanguageConstants language : Languages) {
        const auto word = StoredText(LanguageBlock(language) + number);
        if (word && EqualIgnoreCase(text, *word)) return true;
    }
    return false;
}

bool IsYesWord(std::string_view text) {
    return IsStoredWord(text, YesNumber) || EqualIgnoreCase(text, "true") || EqualIgnoreCase(text, "wahr");
}

bool IsNoWord(std::string_view text) {
    return IsStoredWord(text, NoNumber) || EqualIgnoreCase(text, "false") || EqualIgnoreCase(text, "falsch");
}

std::optional<bool> FromNumber(std::optional<double> number) {
    if (!number || std::isnan(*number)) return std::nullopt;
    return *number != 0;
}

std::optional<bool> FromText(std::string_view typed, std::string_view yesText, std::string_view noText,
                             const Locale& locale) {
    const std::string_view text = TrimBlanks(typed);
    if (text.empty()) return false;
    // The cell's own words come first: a host may call its entries "0" and "1".
    if (EqualIgnoreCase(text, yesText)) return true;
    if (EqualIgnoreCase(text, noText)) return false;
    if (IsYesWord(text)) return true;
    if (IsNoWord(text)) return false;
    return FromNumber(NumberFromText(text, locale));
}

} // namespace

std::optional<bool> BooleanFromInput(const Variant& value, std::string_view yesText, std::string_view noText,
                                     const Locale& locale) {
    if (value.IsEmpty() || value.IsNull()) return false;
    if (const bool* boolean = value.Get<bool>()) return *boolean;
    if (value.IsNumber()) return FromNumber(ToDouble(value, locale));
    if (const auto* text = value.Get<std::string>()) return FromText(*text, yesText, noText, locale);
    return std::nullopt;
}

} // namespace quillgrid
