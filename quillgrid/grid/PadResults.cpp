#include "quillgrid/grid/PadResults.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/grid/CellRules.h"

namespace quillgrid {

std::shared_ptr<Cell> PadResults::Target() const {
    auto cell = Pads.CurrentCell();
    return cell && IsEditable(*cell, State.Settings.UserLevel) ? cell : nullptr;
}

void PadResults::Show(const Cell& cell) {
    if (State.IsCurrent(cell)) seat_.Seat();
}

void PadResults::Close(bool always) {
    const auto cell = Pads.CurrentCell();
    const bool report = cell && (always || !EqualAsText(Pads.ValueBefore(), CellAccess::StoredValue(*cell)));
    if (seat_.IsSeated()) seat_.TakeFocus();
    Pads.Hide();
    if (report && State.IsCurrent(*cell)) events_.Change(*cell);
}

bool PadResults::IsLocked(const Cell& cell) const {
    const std::int32_t level = State.Settings.UserLevel;
    return level < cell.UserLevelDataVisible() || level < cell.UserLevelEnabled();
}

void PadResults::ShowBelow(PadWindow& window) {
    const Rect value = State.ValueArea(State.CurrentRow);
    window.ShowAt(window.ToScreen({value.Right - window.Width(), value.Bottom}));
}

} // namespace quillgrid
