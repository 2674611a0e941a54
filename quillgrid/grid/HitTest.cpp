#include "quillgrid/grid/HitTest.h"

namespace quillgrid {

Hit HitTest(const GridLayout& layout, std::int32_t firstRow, std::int32_t lastRow, Point point) {
    if (!layout.Content.Contains(point)) return {};
    const std::int32_t place = (point.Y - layout.Content.Top) / layout.RowPitch;
    const std::int32_t row = firstRow + place;
    if (row > lastRow) return {};
    if (layout.ValueArea(place).Contains(point)) return {HitPlace::Value, row};
    if (layout.LabelArea(place).Contains(point)) return {HitPlace::Label, row};
    return {};
}

} // namespace quillgrid
