#pragma once

#include "quillgrid/base/Rect.h"

#include <cstdint>

namespace quillgrid {

/// Moves a rectangle up or down. Wraps at the ends of the number range, so that moving back always restores
/// it.
inline Rect MovedDown(const Rect& rect, std::int32_t distance) {
    const auto moved = [distance](std::int32_t y) {
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(y) +
                                         static_cast<std::uint32_t>(distance));
    };
    return {rect.Left, moved(rect.Top), rect.Right, moved(rect.Bottom)};
}
inline Rect MovedUp(const Rect& rect, std::int32_t distance) {
    return MovedDown(rect, static_cast<std::int32_t>(0U - static_cast<std::uint32_t>(distance)));
}

} // namespace quillgrid
