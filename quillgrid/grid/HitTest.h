#pragma once

#include "quillgrid/base/Rect.h"
#include "quillgrid/grid/GridLayout.h"

#include <cstdint>

namespace quillgrid {

enum class HitPlace : std::uint8_t { Nowhere, Label, Value };

struct Hit {
    HitPlace Place = HitPlace::Nowhere;
    std::int32_t Row = 0; ///< 1-based, 0 for Nowhere

    friend bool operator==(const Hit&, const Hit&) = default;
};

/// What stands at a point when rows `firstRow` to `lastRow` are in view.
Hit HitTest(const GridLayout& layout, std::int32_t firstRow, std::int32_t lastRow, Point point);

} // namespace quillgrid
