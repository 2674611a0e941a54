#pragma once

#include <cstdint>

namespace quillgrid::qt {

/// Adds up the small turns that fine wheels and touch pads report until they make whole rows.
class WheelSteps {
public:
    /// `delta` in eighths of a degree, positive away from the user. Rows to scroll, positive down.
    std::int32_t Rows(int delta, int rowsPerNotch) {
        if ((delta < 0) != (rest_ < 0)) rest_ = 0; // a turn back counts from its start
        rest_ += static_cast<std::int64_t>(delta) * rowsPerNotch;
        const std::int64_t rows = rest_ / Notch;
        rest_ -= rows * Notch;
        return static_cast<std::int32_t>(-rows);
    }

private:
    static constexpr std::int64_t Notch = 120;

    std::int64_t rest_ = 0;
};

} // namespace quillgrid::qt
