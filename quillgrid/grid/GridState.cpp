#include "quillgrid/grid/GridState.h"

#include <algorithm>

namespace quillgrid {

std::int32_t GridState::LastVisible() const {
    return std::min(FirstVisible + std::max(Layout.VisibleRows, 1) - 1, RowCount());
}

std::int32_t GridState::LimitedFirstVisible(std::int32_t row) const {
    const std::int32_t last = RowCount() - std::max(Layout.VisibleRows, 1) + 1;
    return std::clamp(row, 1, std::max(last, 1));
}

std::shared_ptr<Cell> GridState::RowCell(std::int32_t row) const {
    return row < 1 ? nullptr : Rows.At(static_cast<std::size_t>(row));
}

std::int32_t GridState::RowOf(const Cell& cell) const {
    // Index is the row while the order stands; a cell without a row may carry a number that collides.
    return RowCell(cell.Index()).get() == &cell ? cell.Index() : Rows.PositionOf(cell);
}

Rect GridState::RowArea(std::int32_t row) const {
    return IsInView(row) ? Layout.RowArea(row - FirstVisible) : Rect{};
}

Rect GridState::ValueArea(std::int32_t row) const {
    return IsInView(row) ? Layout.ValueArea(row - FirstVisible) : Rect{};
}

} // namespace quillgrid
