// Conversion of a variant to one type, texts read as the user's locale writes them. Nothing when the value
// has no meaning in that type: callers decide what that means.
#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <cstdint>
#include <optional>
#include <string>

namespace quillgrid {

/// Numbers (rounded half to even), booleans (-1, 0), dates (their day number), texts that are numbers. Null,
/// empty and objects give nothing in all of these.
QUILLGRID_EXPORT std::optional<std::int32_t> ToLong(const Variant& value, const Locale& locale);
QUILLGRID_EXPORT std::optional<Currency> ToCurrency(const Variant& value, const Locale& locale);
QUILLGRID_EXPORT std::optional<double> ToDouble(const Variant& value, const Locale& locale);
QUILLGRID_EXPORT std::optional<DateTime> ToDateTime(const Variant& value, const Locale& locale);
/// Numbers differ from 0; texts "true", "false", the locale's words for them, or a number.
QUILLGRID_EXPORT std::optional<bool> ToBoolean(const Variant& value, const Locale& locale);
/// The number that a text writes: an optional minus, digits with the locale's group separators, its decimal
/// separator, an optional exponent. Blanks at both ends are passed over.
QUILLGRID_EXPORT std::optional<double> NumberFromText(std::string_view text, const Locale& locale);

/// The value as the locale writes it: "" for Null, empty and objects, General Number, General Date, or the
/// text.
QUILLGRID_EXPORT std::string ToText(const Variant& value, const Locale& locale);

} // namespace quillgrid
