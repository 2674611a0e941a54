#include "quillgrid/grid/OpenPads.h"

#include "quillgrid/calendar/QGCalendar.h"
#include "quillgrid/cells/CellAccess.h"

namespace quillgrid {

namespace {

constexpr std::array<PadKind, 3> AllPads{PadKind::List, PadKind::Date, PadKind::Calc};

} // namespace

void OpenPads::Begin(const std::shared_ptr<Cell>& cell) {
    Hide(); // the cell may have become one with another pad
    state_.PadOpen = true;
    cell_ = cell;
    value_ = state_.ValueArea(state_.CurrentRow);
    before_ = CellAccess::StoredValue(*cell);
}

PadWindow& OpenPads::Detach(PadKind kind, const std::shared_ptr<Cell>& cell) {
    Begin(cell);
    PadWindow& window = factory_->Window(kind);
    windows_[static_cast<std::size_t>(kind)] = &window;
    window.Detach(value_);
    return window;
}

void OpenPads::Await(const std::shared_ptr<Cell>& cell, Connection waiting) {
    waiter_ = cell;
    waiting_ = std::move(waiting);
}

void OpenPads::Forget(const Cell& cell) {
    if (waiter_.lock().get() == &cell) waiting_.Disconnect();
    if (state_.IsCurrent(cell)) Hide();
}

void OpenPads::Hide() {
    waiting_.Disconnect();
    for (const PadKind kind : AllPads) {
        if (!IsShown(kind)) continue;
        At(kind)->Hide();
        if (kind == PadKind::Date) factory_->DatePad().Hidden();
    }
    state_.PadOpen = false;
    cell_.reset();
}

void OpenPads::Follow() {
    const auto waiter = waiter_.lock();
    if (waiter && !state_.IsCurrent(*waiter)) waiting_.Disconnect();
    const auto cell = cell_.lock();
    if (!cell || !IsOpen()) return;
    if (!state_.IsCurrent(*cell) || state_.ValueArea(state_.CurrentRow) != value_) Hide();
}

void OpenPads::Terminate() {
    Hide();
    windows_ = {};
    factory_ = nullptr;
}

bool OpenPads::IsShown(PadKind kind) const {
    return At(kind) && At(kind)->IsShown();
}

std::optional<PadKind> OpenPads::Shown() const {
    for (const PadKind kind : AllPads) {
        if (IsShown(kind)) return kind;
    }
    return std::nullopt;
}

std::shared_ptr<Cell> OpenPads::CurrentCell() const {
    const auto cell = cell_.lock();
    return cell && state_.IsCurrent(*cell) ? cell : nullptr;
}

} // namespace quillgrid
