#include "quillgrid/pads/CalculatorKeys.h"

#include "quillgrid/base/Text.h"

#include <array>

namespace quillgrid {

namespace {

// The faces of the formula keys are their function keys: shown where the host has no image for them.
constexpr std::array<CalculatorKey, CalculatorKeyCount + 1> Keys{{
    {}, // keys count from 1
    {'7', 1, 1, 1, "7"},
    {'8', 2, 1, 1, "8"},
    {'9', 3, 1, 1, "9"},
    {'/', 4, 1, 1, "\u00F7"},
    {action::Clear, 5, 1, 1, "C"},
    {'4', 1, 2, 1, "4"},
    {'5', 2, 2, 1, "5"},
    {'6', 3, 2, 1, "6"},
    {'*', 4, 2, 1, "\u00D7"},
    {action::BackSpace, 5, 2, 1, "\u2190"},
    {'1', 1, 3, 1, "1"},
    {'2', 2, 3, 1, "2"},
    {'3', 3, 3, 1, "3"},
    {'-', 4, 3, 1, "\u2212"},
    {action::Equals, 5, 3, 2, "="},
    {'0', 1, 4, 1, "0"},
    {action::Comma, 2, 4, 1, "."},
    {action::ChangeSign, 3, 4, 1, "\u00B1"},
    {'+', 4, 4, 1, "+"},
    {},
    {action::FirstFormula, 0, 1, 1, "F5"},
    {action::FirstFormula + 1, 0, 2, 1, "F6"},
    {action::FirstFormula + 2, 0, 3, 1, "F7"},
    {action::LastFormula, 0, 4, 1, "F8"},
}};

// Codes beyond are actions that no character types.
constexpr std::int32_t LastCharacter = 255;

std::int32_t Translated(std::int32_t character) {
    switch (character) {
    case '.':
    case ';': return action::Comma;
    case 'C':
    case 27: return action::Clear;
    case '\r':
    case ' ': return action::Equals;
    default: return character;
    }
}

} // namespace

const CalculatorKey& CalculatorKeyAt(std::int32_t number) {
    return Keys[number >= 1 && number <= CalculatorKeyCount ? static_cast<std::size_t>(number) : 0];
}

std::int32_t CalculatorKeyOf(std::int32_t action) {
    for (std::int32_t number = 1; number <= CalculatorKeyCount; ++number) {
        if (action != action::None && CalculatorKeyAt(number).Action == action) return number;
    }
    return 0;
}

std::int32_t ActionOfCharacter(std::int32_t character, std::string_view separators) {
    if (character <= 0) return action::None;
    const std::int32_t code = Translated(character);
    if (ContainsIgnoreCase(separators, static_cast<char32_t>(code))) return action::Comma;
    return code <= LastCharacter && CalculatorKeyOf(code) != 0 ? code : action::None;
}

} // namespace quillgrid
