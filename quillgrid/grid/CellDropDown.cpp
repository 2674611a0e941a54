#include "quillgrid/grid/CellDropDown.h"

#include "quillgrid/grid/CellRules.h"

#include <utility>

namespace quillgrid {

namespace {

/// Milliseconds in which a button is seen pressed before the host drops something down.
constexpr std::int32_t PressedTime = 100;

} // namespace

void CellDropDown::Run() {
    const auto cell = state_.Current;
    if (!cell || !state_.UserMode || state_.Terminated || IsHeading(*cell)) return;
    if (with_.Commit.CommitInPlace() != CommitResult::Done || !state_.IsCurrent(*cell)) return;
    Press(cell);
}

void CellDropDown::Press(const std::shared_ptr<Cell>& cell) {
    switch (cell->Button()) {
    case qgbtNone: return Toggle();
    case qgbtSpin: return;
    case qgbtClock: return PressClock(cell);
    case qgbtCalc: return PressCalc(cell);
    default: return PressOther(cell);
    }
}

void CellDropDown::PressClock(const std::shared_ptr<Cell>& cell) {
    if (cell->ValidationRule() != qgvrDate || !with_.Pads.IsOffered()) {
        with_.Pads.Begin(cell);
        return AskHostSoon(cell, true);
    }
    if (with_.Pads.IsShown(PadKind::Date)) return with_.Pads.Hide();
    with_.DatePad.Show(cell);
}

/// The calculator does not count as an open pad.
void CellDropDown::PressCalc(const std::shared_ptr<Cell>& cell) {
    if (!with_.Pads.IsOffered()) return AskHostSoon(cell, false);
    if (with_.Results.IsLocked(*cell)) return;
    if (with_.Pads.IsShown(PadKind::Calc)) return with_.Pads.Hide();
    with_.CalcPad.Show(cell);
    state_.PadOpen = false;
}

void CellDropDown::PressOther(const std::shared_ptr<Cell>& cell) {
    if (!with_.Pads.IsOffered()) return AskHostSoon(cell, false);
    if (cell->Style() == qgcsList) {
        ToggleList(cell);
    } else {
        PressText(cell);
    }
}

void CellDropDown::PressText(const std::shared_ptr<Cell>& cell) {
    if (cell->Template() == qgctEuro) {
        if (with_.Pads.IsShown(PadKind::List) || with_.Listpad.FillCurrencies(*cell)) ToggleList(cell);
    } else if (std::as_const(*cell).Listitems().Count() > 0) {
        ToggleList(cell);
    } else if (!with_.Pads.IsOpen() && with_.Selector.Select(state_.CurrentRow) && state_.IsCurrent(*cell)) {
        AskHostSoon(cell, false);
    }
}

void CellDropDown::ToggleList(const std::shared_ptr<Cell>& cell) {
    if (with_.Pads.IsShown(PadKind::List)) return with_.Pads.Hide();
    with_.Listpad.Show(cell);
}

void CellDropDown::AskHostSoon(const std::shared_ptr<Cell>& cell, bool staysOpen) {
    const auto ask = [this, staysOpen, control = state_.Self, waiter = std::weak_ptr<Cell>(cell)] {
        const auto held = control.lock();
        const auto asked = waiter.lock();
        if (held && asked && state_.IsCurrent(*asked)) AskHost(asked, staysOpen);
    };
    with_.Pads.Await(cell, clock_.After(PressedTime, ask));
}

void CellDropDown::AskHost(const std::shared_ptr<Cell>& cell, bool staysOpen) {
    ReleaseButton();
    const Rect value = state_.ValueArea(state_.CurrentRow);
    const auto x = static_cast<float>(site_.ToContainerUnits(value.Right));
    const auto y = static_cast<float>(site_.ToContainerUnitsVertically(value.Bottom));
    if (staysOpen && state_.PadOpen) return with_.Events.DropDown(*cell, x, y);
    const FlagGuard open(state_.PadOpen, true, false);
    with_.Events.DropDown(*cell, x, y);
}

void CellDropDown::ReleaseButton() {
    if (state_.Pressed.Place != MousePart::Kind::CellButton) return;
    with_.Repaint.Row(std::exchange(state_.Pressed, MousePart{}).Row);
}

} // namespace quillgrid
