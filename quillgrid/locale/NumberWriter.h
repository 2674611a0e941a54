// The parts from which numbers are written, and the named number formats.
#pragma once

#include "quillgrid/locale/DecimalNumber.h"
#include "quillgrid/locale/Locale.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// The locale's decimal separator, never empty.
std::string_view DecimalSeparatorOf(const Locale& locale);
/// Appends the digit of weight 10^power, and `separator` when a group of three ends there.
void AppendIntegerDigit(std::string& out, const DecimalNumber& number, std::int64_t power,
                        std::string_view separator);

/// All digits, no grouping, no exponent: what is shown can be typed again.
std::string WriteGeneral(const DecimalNumber& number, const Locale& locale);
/// Two decimals; grouped on request.
std::string WriteFixed(DecimalNumber number, bool grouped, const Locale& locale);
/// A hundred times the number with two decimals and "%".
std::string WritePercent(DecimalNumber number, const Locale& locale);
/// Money with the locale's symbol; a minus stands before everything else.
std::string WriteCurrency(DecimalNumber number, const Locale& locale);

} // namespace quillgrid
