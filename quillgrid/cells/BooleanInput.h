#pragma once

#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"

#include <optional>
#include <string_view>

namespace quillgrid {

/// What a value means to a yes/no cell: booleans, numbers (0 is no), the texts of the cell's own two entries,
/// the yes and no of every language, "true", "wahr", "false", "falsch" in any case, and texts that are
/// numbers. Empty, Null and blank texts are no. Nothing for any other text, for dates and objects: the cell
/// keeps what it has.
std::optional<bool> BooleanFromInput(const Variant& value, std::string_view yesText, std::string_view noText,
                                     const Locale& locale);

} // namespace quillgrid
