#pragma once

#include <cstdint>

namespace quillgrid {

/// A column of the layout, in pixels.
class Column {
public:
    struct Extent {
        std::int32_t Left = 0;
        std::int32_t Width = 0;
        bool Fixed = false;

        friend bool operator==(const Extent&, const Extent&) = default;
    };

    std::int32_t Left() const { return extent_.Left; }
    void SetLeft(std::int32_t left) { extent_.Left = left; }
    std::int32_t Width() const { return extent_.Width; }
    /// Fixes the width; 0 frees it, a negative width counts as 0.
    void SetWidth(std::int32_t width) {
        extent_.Width = width > 0 ? width : 0;
        extent_.Fixed = extent_.Width != 0;
    }
    /// Whether the column keeps its width instead of sharing the remaining space.
    bool Fixed() const { return extent_.Fixed; }
    void SetFixed(bool fixed) { extent_.Fixed = fixed; }

    /// What layout found: left and width together, without touching `Fixed`.
    void Place(std::int32_t left, std::int32_t width) {
        extent_.Left = left;
        extent_.Width = width > 0 ? width : 0;
    }
    const Extent& Place() const { return extent_; }

private:
    Extent extent_;
};

} // namespace quillgrid
