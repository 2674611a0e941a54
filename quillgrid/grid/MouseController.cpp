#include "quillgrid/grid/MouseController.h"

#include "quillgrid/grid/CellRules.h"
#include "quillgrid/grid/HitTest.h"
#include "quillgrid/grid/ValueLayout.h"

namespace quillgrid {

void MouseController::Press(Point position) {
    if (state_.Terminated || !state_.UserMode) return;
    const Hit hit = HitTest(state_.Layout, state_.FirstVisible, state_.LastVisible(), position);
    const auto cell = state_.RowCell(hit.Row);
    if (!cell) return;
    const bool onImage = hit.Place == HitPlace::Value && IsOnImage(*cell, hit.Row, position);
    if (!selector_.Select(hit.Row) || !onImage || !state_.IsCurrent(*cell)) return;
    if (cell->ValidationRule() == qgvrBoolean) {
        editor_.DropDownCell();
    } else {
        events_.ImageClick(*cell);
    }
}

bool MouseController::IsOnImage(const Cell& cell, std::int32_t row, Point position) const {
    if (IsHeading(cell)) return false;
    const Rect area = state_.ValueArea(row);
    const bool visible = IsDataVisible(cell, state_.Settings.UserLevel);
    const ValueLayout parts = LayOutValue(cell, area, state_.Layout, images_, visible);
    return visible && parts.ImageContent && position.X < area.Left + parts.Image.Width();
}

void MouseController::DoubleClick() {
    if (!state_.Terminated && state_.UserMode && state_.Current && state_.Current->Button() != qgbtNone) {
        editor_.DropDownCell();
    }
}

} // namespace quillgrid
