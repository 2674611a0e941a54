#pragma once

#include "quillgrid/base/Variant.h"

#include <string_view>

namespace quillgrid {

/// Whether a pattern writes dates: it has date letters outside quotes and no digit places, or has both and
/// the value is a date.
bool IsDatePattern(std::string_view pattern, Variant::Type valueType);

} // namespace quillgrid
