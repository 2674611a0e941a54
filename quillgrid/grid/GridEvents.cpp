#include "quillgrid/grid/GridEvents.h"

namespace quillgrid {

namespace {

// The published events carry 16 bits; what does not fit goes by as the replacement character.
std::int16_t Narrow(char32_t character) {
    return static_cast<std::int16_t>(static_cast<std::uint16_t>(character > 0xFFFF ? 0xFFFD : character));
}

void RaiseKey(const Event<Cell&, std::int16_t&, std::int16_t&>& event, Cell& cell, std::int32_t& keyCode,
              std::int32_t& shift) {
    auto narrowCode = static_cast<std::int16_t>(keyCode);
    auto narrowShift = static_cast<std::int16_t>(shift);
    event.Raise(cell, narrowCode, narrowShift);
    keyCode = narrowCode;
    shift = narrowShift;
}

} // namespace

bool GridEvents::ValidateCellError(Cell& cell, ValidationErrConstants code) {
    bool cancel = false;
    if (events_) events_->ValidateCellError.Raise(cell, code, cancel);
    return cancel;
}

bool GridEvents::ValidateCell(Cell& cell) {
    bool cancel = false;
    if (events_ && !state_.Silent) events_->ValidateCell.Raise(cell, cancel);
    return cancel;
}

void GridEvents::SelChange(Cell& cell) {
    if (events_) events_->SelChange.Raise(cell);
}

void GridEvents::Change(Cell& cell) {
    if (!events_ || state_.Silent || !state_.Current) return;
    if (state_.LeavingFocus || state_.Dropping || window_.HasFocus()) events_->Change.Raise(cell);
}

void GridEvents::Beep() {
    if (!events_) return;
    window_.Beep();
    events_->Beep.Raise();
}

char32_t GridEvents::KeyPress(Cell& cell, char32_t character) {
    if (!events_) return 0;
    const std::int16_t before = Narrow(character);
    std::int16_t narrow = before;
    events_->KeyPressed.Raise(cell, narrow);
    return narrow == before ? character : static_cast<char32_t>(static_cast<std::uint16_t>(narrow));
}

void GridEvents::KeyDown(Cell& cell, std::int32_t& keyCode, std::int32_t& shift) {
    if (events_) RaiseKey(events_->KeyWentDown, cell, keyCode, shift);
}

void GridEvents::KeyUp(Cell& cell, std::int32_t& keyCode, std::int32_t& shift) {
    if (events_) RaiseKey(events_->KeyWentUp, cell, keyCode, shift);
}

void GridEvents::LeaveFocus(Cell& cell) {
    if (events_) events_->LeaveFocus.Raise(cell);
}

void GridEvents::CloseBoxClick() {
    if (events_) events_->CloseBoxClick.Raise();
}

void GridEvents::MenuClick(float x, float y) {
    if (events_) events_->MenuClick.Raise(x, y);
}

void GridEvents::DropDown(Cell& cell, float x, float y) {
    if (events_) events_->DropDown.Raise(cell, x, y);
}

void GridEvents::ImageClick(Cell& cell) {
    if (events_) events_->ImageClick.Raise(cell);
}

} // namespace quillgrid
