#pragma once

#include <cstdint>

namespace quillgrid {

/// Where Tab leads. Ctrl+Tab leaves the control whatever the policy.
enum class TabPolicy : std::uint8_t {
    LeaveAtEnds, ///< from cell to cell, from the last one out of the control
    Wrap,        ///< from the last cell to the first, as Enter does under AllowWrap
    Leave,       ///< out of the control from any cell
};

} // namespace quillgrid
