#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Rect.h"

#include <string>

namespace quillgrid::headless {

/// "1,2 - 30,40".
std::string TextOf(const Rect& rect);
/// "sys5" for system colours, "#rrggbb" otherwise.
std::string TextOf(Colour colour);

} // namespace quillgrid::headless
