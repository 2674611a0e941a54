#pragma once

#include "quillgrid/base/Export.h"

#include <cstdint>
#include <string_view>

namespace quillgrid {

/// What a key of the calculator does. Digits and operators are their own characters.
namespace action {
inline constexpr std::int32_t None = 0;
inline constexpr std::int32_t BackSpace = 8;
inline constexpr std::int32_t Comma = ',';
inline constexpr std::int32_t Point = '.';
inline constexpr std::int32_t Equals = '=';
inline constexpr std::int32_t Clear = 'c';
inline constexpr std::int32_t ChangeSign = 1000;
inline constexpr std::int32_t FirstFormula = 1001;
inline constexpr std::int32_t LastFormula = 1004;
} // namespace action

/// One key of the keypad.
struct CalculatorKey {
    std::int32_t Action = action::None;
    std::int32_t Column = 0; ///< 0..5, column 0 holds the formula keys
    std::int32_t Row = 0;    ///< 1..4; 0 for a key that is not there
    std::int32_t Height = 1; ///< rows
    std::string_view Face{}; ///< what is written on the key
};

inline constexpr std::int32_t CalculatorKeyCount = 24;
inline constexpr std::int32_t FirstFormulaKey = 21;

/// The key of a number 1..24; one without a place for other numbers (and for 20, which is kept free).
QUILLGRID_EXPORT const CalculatorKey& CalculatorKeyAt(std::int32_t number);
/// The number of the key with an action, 0 when there is none.
QUILLGRID_EXPORT std::int32_t CalculatorKeyOf(std::int32_t action);
/// What a typed character does, or None: the separators type the point, Escape clears, Enter and Space are
/// "=".
QUILLGRID_EXPORT std::int32_t ActionOfCharacter(std::int32_t character, std::string_view separators);

constexpr bool IsFormulaAction(std::int32_t code) {
    return code >= action::FirstFormula && code <= action::LastFormula;
}

} // namespace quillgrid
