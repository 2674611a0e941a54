#pragma once

#include <cstdint>

namespace quillgrid {

struct Point {
    std::int32_t X = 0;
    std::int32_t Y = 0;

    friend bool operator==(const Point&, const Point&) = default;
};

struct Size {
    std::int32_t Width = 0;
    std::int32_t Height = 0;

    friend bool operator==(const Size&, const Size&) = default;
};

/// Logical pixels; Right and Bottom lie just outside.
struct Rect {
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Right = 0;
    std::int32_t Bottom = 0;

    constexpr std::int32_t Width() const { return Right - Left; }
    constexpr std::int32_t Height() const { return Bottom - Top; }
    constexpr bool IsEmpty() const { return Right <= Left || Bottom <= Top; }
    constexpr bool Contains(Point point) const {
        return point.X >= Left && point.X < Right && point.Y >= Top && point.Y < Bottom;
    }
    /// Every side moved inwards by `margin` pixels (outwards when negative).
    constexpr Rect Shrunk(std::int32_t margin) const {
        return {Left + margin, Top + margin, Right - margin, Bottom - margin};
    }
    constexpr Rect Moved(std::int32_t dx, std::int32_t dy) const {
        return {Left + dx, Top + dy, Right + dx, Bottom + dy};
    }

    friend bool operator==(const Rect&, const Rect&) = default;
};

} // namespace quillgrid
