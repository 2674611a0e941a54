// Numbers as people of a locale write them, brought to the one plain form that the value types read.
#pragma once

#include "quillgrid/locale/Locale.h"

#include <optional>
#include <string>
#include <string_view>

namespace quillgrid {

/// "-1.234,5E2" becomes "-123450": "[-]digits[.digits]" without exponent. Group separators must part groups
/// of three digits; blanks at both ends are passed over. Nothing for other texts and for exponents that no
/// double reaches. Linear in the length of the text.
std::optional<std::string> PlainNumberText(std::string_view text, const Locale& locale);

} // namespace quillgrid
