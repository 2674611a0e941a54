#pragma once

#include "tests/monkey/Step.h"

#include <functional>

namespace quillgrid::monkey {

/// The steps without all those, and without all parts of numbers, that the failure does not need: ever
/// smaller pieces are left out as long as what remains still fails.
Steps Shrink(Steps steps, const std::function<bool(const Steps&)>& fails);

} // namespace quillgrid::monkey
