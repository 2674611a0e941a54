#include "quillgrid/grid/DropTarget.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/grid/CellRules.h"
#include "quillgrid/grid/HitTest.h"

namespace quillgrid {

std::shared_ptr<Cell> DropTarget::CellAt(Point position) const {
    if (state_.Terminated || !state_.UserMode) return nullptr;
    auto cell =
        state_.RowCell(HitTest(state_.Layout, state_.FirstVisible, state_.LastVisible(), position).Row);
    const bool takes = cell && !IsHeading(*cell) && IsEditable(*cell, state_.Settings.UserLevel);
    return takes ? cell : nullptr;
}

bool DropTarget::Takes(Point position) const {
    return CellAt(position) != nullptr;
}

bool DropTarget::Drop(Point position, std::string_view text) {
    const auto cell = CellAt(position);
    if (!cell) return false;
    const bool taken = Take(*cell, text);
    if (state_.Left) seat_.Seat(); // the box was needed only to take the text
    return taken;
}

bool DropTarget::Take(const Cell& cell, std::string_view text) {
    const FlagGuard dropping(state_.Dropping);
    if (!selector_.Select(state_.RowOf(cell)) || !state_.IsCurrent(cell)) return false;
    if (IsListOrBoolean(cell)) {
        stepper_.TakeText(RepairUtf8(text));
    } else if (seat_.IsSeatedOn(cell)) {
        seat_.Box().SetText(RepairUtf8(text));
    }
    commit_.CommitInPlace();
    return true;
}

} // namespace quillgrid
