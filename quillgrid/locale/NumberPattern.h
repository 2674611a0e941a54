#pragma once

#include "quillgrid/locale/DecimalNumber.h"
#include "quillgrid/locale/Locale.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// A number by a pattern of one to four sections. Work and result are linear in the length of the pattern.
std::string WriteByNumberPattern(const DecimalNumber& number, std::string_view pattern, const Locale& locale);
/// What the pattern's fourth section writes for Null, "" when there is none.
std::string WriteNullByPattern(std::string_view pattern, const Locale& locale);

} // namespace quillgrid
