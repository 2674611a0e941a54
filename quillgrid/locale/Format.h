#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// `value` written by a format expression: one of the named formats "General Number", "Currency", "Fixed",
/// "Standard", "Percent", "Scientific", "Yes/No", "True/False", "On/Off", "General Date", "Short Date",
/// "Medium Date", "Long Date", "Short Time", "Medium Time", "Long Time" (names in any case); a number pattern
/// (0 # . , % E+ E- e+ e-, literals in quotes or after a backslash, up to four sections for positive,
/// negative, zero and Null values separated by ";"); or a date pattern (d dd ddd dddd ddddd dddddd w ww m mm
/// mmm mmmm q y yy yyyy h hh n nn s ss ttttt AM/PM am/pm A/P a/p c / :; m after h means minutes). An empty
/// pattern gives the value's general form. Null and empty give "" (or the fourth section); a text that is no
/// number (no date) passes unchanged through a number (date) format. Numbers are rounded half away from zero
/// on their shortest decimal digits; what rounds to zero shows no minus.
QUILLGRID_EXPORT std::string Format(const Variant& value, std::string_view pattern, const Locale& locale);

} // namespace quillgrid
