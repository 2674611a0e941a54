// Assigned and typed values as dates and times of day. Incomplete texts are completed from today's date; what
// the short forms do not explain is recognised as a person would write it in full.
#pragma once

#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/InputConversion.h"

#include <cstdint>
#include <optional>

namespace quillgrid {

/// The day number; a date variant loses its time, a number is no date.
std::optional<std::int32_t> DayFromInput(const Variant& value, const InputContext& context);
/// Seconds since midnight; a date variant loses its day.
std::optional<std::int32_t> SecondFromInput(const Variant& value, const InputContext& context);

} // namespace quillgrid
