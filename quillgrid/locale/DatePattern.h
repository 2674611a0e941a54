#pragma once

#include "quillgrid/base/DateTime.h"
#include "quillgrid/locale/Locale.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// A date and time by a date pattern; a day outside the valid range gives "". Work and result are linear in
/// the length of the pattern.
std::string WriteByDatePattern(DateTime value, std::string_view pattern, const Locale& locale);
/// The short date, the long time, or both: a midnight has no time, day 0 no date.
std::string WriteGeneralDate(DateTime value, const Locale& locale);

} // namespace quillgrid
