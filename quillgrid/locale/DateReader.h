#pragma once

#include "quillgrid/base/DateTime.h"
#include "quillgrid/locale/Locale.h"

#include <optional>
#include <string_view>

namespace quillgrid {

/// The year that a typed one means: 0..29 give 2000..2029, 30..99 give 1930..1999, 100..9999 themselves.
std::optional<int> ExpandYear(std::int64_t typed);

/// "12/3/2027": three runs of digits with one of `separators` between them, read in the given order (a first
/// part of three or more digits is a year: yyyy/m/d). Nothing when the parts name no day of years 100 to
/// 9999. Allocates nothing.
std::optional<std::int32_t> ReadDateParts(std::string_view text, DateOrder order,
                                          std::string_view separators = "/");

/// "12:30:00": three runs of one or two digits separated by ":"; hours 0..23. Seconds since midnight.
std::optional<std::int32_t> ReadTimeParts(std::string_view text);

/// What a person may write for a date, a time or both: digits separated by runs of blank . / - : ; long and
/// short month names of the locale, German and English; day names (passed over); yyyy-mm-dd everywhere; hours
/// with am/pm; an optional time after a date. Dates in the locale's order. A time alone has day 0.
struct RecognisedDateTime {
    DateTime Value;
    bool HasDate = false;
    bool HasTime = false;
};
std::optional<RecognisedDateTime> RecogniseDateTime(std::string_view text, const Locale& locale);

} // namespace quillgrid
