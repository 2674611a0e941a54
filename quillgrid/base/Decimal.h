// The one place that turns binary floating point into decimal text and back: some of the library's compilers
// lack the floating-point overloads of from_chars and to_chars.
#pragma once

#include "quillgrid/base/Export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quillgrid {

/// Reads "[-]digits[.digits]" (either run may be empty, not both), correctly rounded; nothing when the text
/// is of another form or the number is too large for a double. Independent of the C locale.
QUILLGRID_EXPORT std::optional<double> DoubleFromDecimal(std::string_view text);

/// The shortest digits that read back as the same finite number: digits "125", exponent 1 means 1.25 × 10^1.
struct ShortestDigits {
    char Digits[20] = {}; ///< no leading or trailing zeros; "0" for zero
    int Count = 0;        ///< 1 to 17
    int Exponent = 0;     ///< power of ten of the first digit
    bool Negative = false;
};
QUILLGRID_EXPORT ShortestDigits DigitsOf(double number);

/// Plain decimal with "." and no exponent, shortest form: "0.00001", "100000000000000000000", "-2.5".
/// "nan", "inf" and "-inf" for the values that are no numbers.
QUILLGRID_EXPORT std::string PlainDecimal(double number);
/// Rounds half to even at the exact binary value; nothing outside 32 bits and for NaN.
QUILLGRID_EXPORT std::optional<std::int32_t> RoundToLong(double number);

} // namespace quillgrid
