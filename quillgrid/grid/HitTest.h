#pragma once

#include "quillgrid/base/Rect.h"
#include "quillgrid/grid/GridLayout.h"

#include <cstdint>

namespace quillgrid {

/// `Strip` is the right-hand part of a value, where a button stands if the cell has one.
enum class HitPlace : std::uint8_t { Nowhere, Label, Value, Strip, CloseBox, MenuBox, GroupMargin };

struct Hit {
    HitPlace Place = HitPlace::Nowhere;
    std::int32_t Row = 0; ///< 1-based; 0 where there is none

    friend bool operator==(const Hit&, const Hit&) = default;
};

/// What stands at a point when rows `firstRow` to `lastRow` are in view.
Hit HitTest(const GridLayout& layout, std::int32_t firstRow, std::int32_t lastRow, Point point);

} // namespace quillgrid
