#include "quillgrid/grid/Viewport.h"

#include <algorithm>

namespace quillgrid {

void Viewport::ShowFrom(std::int32_t row) {
    if (state_.Terminated) return;
    const std::int32_t first = state_.LimitedFirstVisible(row);
    const bool moved = first != state_.FirstVisible;
    state_.FirstVisible = first;
    bar_.SetValue(first);
    EnableArrows();
    if (moved) repaint_.Rows();
}

void Viewport::EnableArrows() {
    bar_.EnableArrows(state_.FirstVisible > 1, state_.FirstVisible < state_.Layout.ScrollMaximum);
}

void Viewport::Reveal(std::int32_t row) {
    if (row < state_.FirstVisible) return ShowFrom(row);
    if (row > state_.LastVisible()) ShowFrom(row - std::max(state_.Layout.VisibleRows, 1) + 1);
}

void Viewport::UpdateBar() {
    const GridLayout& layout = state_.Layout;
    bar_.SetRange(1, layout.ScrollMaximum, std::max(layout.VisibleRows, 1));
    bar_.SetValue(state_.FirstVisible);
    EnableArrows();
    if (layout.ScrollBarShown()) {
        bar_.Place(layout.ScrollBar);
    } else {
        bar_.Hide();
    }
}

} // namespace quillgrid
