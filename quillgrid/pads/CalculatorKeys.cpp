#include "quillgrid/pads/CalculatorKeys.h"

#include "quillgrid/base/Text.h"

#include <array>

namespace quillgrid {

namespace {

constexpr std::array<CalculatorKey, CalculatorKeyCount + 1> Keys{{
    {}, // keys count from 1
    {'7', 1, 1},
    {'8', 2, 1},
    {'9', 3, 1},
    {'/', 4, 1},
    {action::Clear, 5, 1},
    {'4', 1, 2},
    {'5', 2, 2},
    {'6', 3, 2},
    {'*', 4, 2},
    {action::BackSpace, 5, 2},
    {'1', 1, 3},
    {'2', 2, 3},
    {'3', 3, 3},
    {'-', 4, 3},
    {action::Equals, 5, 3, 2},
    {'0', 1, 4},
    {action::Comma, 2, 4},
    {action::ChangeSign, 3, 4},
    {'+', 4, 4},
    {},
    {action::FirstFormula, 0, 1},
    {action::FirstFormula + 1, 0, 2},
    {action::FirstFormula + 2, 0, 3},
    {action::LastFormula, 0, 4},
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
