#pragma once

#include "quillgrid/base/Export.h"

#include <cstdint>

namespace quillgrid {

class QGCalcpad;
class QGCalendar;

// The keys by which a pad does what only clicks do otherwise. True: the key is one of them and was used. The
// pad may be gone then.

/// Ctrl+Home goes to today; F10 opens the menu of months, Shift+F10 that of years.
QUILLGRID_EXPORT bool RunPadCommand(QGCalendar& pad, std::int32_t keyCode, std::int32_t shift);
/// F9 changes the sign.
QUILLGRID_EXPORT bool RunPadCommand(QGCalcpad& pad, std::int32_t keyCode, std::int32_t shift);

} // namespace quillgrid
