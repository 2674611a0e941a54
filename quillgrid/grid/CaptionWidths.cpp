#include "quillgrid/grid/CaptionWidths.h"

#include "quillgrid/cells/CellAccess.h"

#include <algorithm>

namespace quillgrid {

std::int32_t CaptionWidths::Widest(const Cells& cells, const Font& font, std::int32_t lineHeight) {
    if (font != font_ || lineHeight != lineHeight_) {
        font_ = font;
        lineHeight_ = lineHeight;
        if (++round_ == 0) ++round_;
    }
    std::int32_t widest = 0;
    for (const auto& cell : cells.All()) {
        if (cell->Template() != qgctGroup) widest = std::max(widest, WidthOf(*cell));
    }
    return widest;
}

std::int32_t CaptionWidths::WidthOf(Cell& cell) const {
    Label& label = CellAccess::Label(cell);
    if (const auto known = label.MeasuredWidth(round_)) return *known;
    const std::int32_t width = metrics_.TextWidth(font_, label.DisplayCaption());
    label.SetMeasuredWidth(width, round_);
    return width;
}

} // namespace quillgrid
