#include "quillgrid/grid/HitTest.h"

namespace quillgrid {

namespace {

HitPlace PlaceInRow(const GridLayout& layout, std::int32_t place, Point point) {
    const Rect value = layout.ValueArea(place);
    if (value.Contains(point)) {
        return point.X > value.Right - layout.ButtonWidth ? HitPlace::Strip : HitPlace::Value;
    }
    return layout.LabelArea(place).Contains(point) ? HitPlace::Label : HitPlace::Nowhere;
}

} // namespace

Hit HitTest(const GridLayout& layout, std::int32_t firstRow, std::int32_t lastRow, Point point) {
    if (layout.CloseBox.Contains(point)) return {HitPlace::CloseBox, 0};
    if (layout.MenuBox.Contains(point)) return {HitPlace::MenuBox, 0};
    const bool inMargin = layout.GroupMargin.Contains(point);
    if (!inMargin && !layout.Content.Contains(point)) return {};
    const std::int32_t place = (point.Y - layout.Content.Top) / layout.RowPitch;
    const std::int32_t row = firstRow + place;
    if (inMargin) return {HitPlace::GroupMargin, row > lastRow ? 0 : row};
    if (row > lastRow) return {};
    const HitPlace found = PlaceInRow(layout, place, point);
    return {found, found == HitPlace::Nowhere ? 0 : row};
}

} // namespace quillgrid
