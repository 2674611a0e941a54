#include "quillgrid/grid/EditSeat.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/grid/CellLook.h"
#include "quillgrid/grid/CellRules.h"
#include "quillgrid/grid/ValueLayout.h"

#include <algorithm>

namespace quillgrid {

bool EditSeat::MayShow() const {
    if (state_.Terminated || !state_.UserMode || !state_.Current) return false;
    if (state_.Left && !state_.Dropping) return false;
    return !IsHeading(*state_.Current) && IsDataVisible(*state_.Current, state_.Settings.UserLevel) &&
           state_.IsInView(state_.CurrentRow);
}

void EditSeat::Seat() {
    if (!MayShow()) return Hide();
    const auto cell = state_.Current;
    const bool another = !IsSeatedOn(*cell);
    if (another) Empty(); // a password must not stand there in the look of the next cell
    shown_ = true;
    box_.SetLook(LookFor(*cell, cell->ErrorCode() != qgErrNone));
    box_.Place(Area(*cell));
    if (another || filled_ != cell->Text()) Fill(cell);
}

void EditSeat::Refill() {
    if (!MayShow() || !IsSeatedOn(*state_.Current)) return Seat();
    Fill(state_.Current);
}

void EditSeat::Hide() {
    if (state_.Terminated || !IsSeated()) return;
    shown_ = false;
    cell_.reset();
    if (window_.HasFocus())
        window_.Focus(); // a hidden box with the focus would pass it on to another control
    box_.Hide();
}

void EditSeat::TakeFocus() {
    if (state_.Terminated) return;
    if (IsSeated()) {
        box_.Focus();
    } else {
        window_.Focus();
    }
}

void EditSeat::KeepFocus() {
    if (!state_.Terminated && window_.HasFocus()) TakeFocus();
}

void EditSeat::ShowError(bool error) {
    if (state_.Terminated || !state_.Current || !IsSeatedOn(*state_.Current)) return;
    box_.SetLook(LookFor(*state_.Current, error));
}

bool EditSeat::IsEdited() const {
    return !state_.Terminated && IsSeated() && box_.Text() != filled_;
}

std::string EditSeat::Text() const {
    return state_.Terminated ? std::string() : RepairUtf8(box_.Text());
}

EditBox::Look EditSeat::LookFor(const Cell& cell, bool error) const {
    EditBox::Look look;
    look.TextFont = ValueFont(cell, state_.Settings);
    look.Ink = error ? state_.Colours.CellErrorText : ValueInk(cell, state_);
    look.Paper = ValuePaper(cell, state_);
    look.Alignment = LimitedAlignment(cell.Alignment());
    if (cell.Template() == qgctPassword) look.Mask = MaskOf(state_.Settings);
    look.ReadOnly = !IsTyped(cell) || !IsEditable(cell, state_.Settings.UserLevel);
    return look;
}

Rect EditSeat::Area(const Cell& cell) const {
    const Rect value = state_.ValueArea(state_.CurrentRow);
    Rect area = LayOutValue(cell, value, state_.Layout, images_, true).EditArea;
    area.Bottom = std::max(area.Top, std::min(area.Bottom, state_.Layout.Content.Bottom));
    return area;
}

void EditSeat::Empty() {
    filled_.clear();
    box_.SetText({});
}

void EditSeat::Fill(const std::shared_ptr<Cell>& cell) {
    cell_ = cell;
    filled_ = cell->Text();
    box_.SetText(filled_);
    box_.Select(0, CharacterCount(filled_));
}

} // namespace quillgrid
