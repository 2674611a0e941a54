#include "quillgrid/grid/GridCore.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/CellLists.h"

#include <algorithm>

namespace quillgrid {

namespace {

GridPorts WithCurrencies(GridPorts ports, CurrencyConverter& ownCurrencies) {
    if (!ports.Currencies) ports.Currencies = &ownCurrencies;
    return ports;
}

} // namespace

GridCore::GridCore(const GridPorts& ports, PublishedEvents& events)
    : ports_(WithCurrencies(ports, euro_)),
      Cells(this),
      Groups(this, Cells),
      ImageList(ports_.Images),
      Samples(State, Cells, Groups, Columns),
      Dates(State, ports_),
      Repaint(State, ports_.Window),
      Events(State, ports_.Window, events),
      View(State, ports_.Bar, Repaint),
      Seat(State, ports_.Editor, ports_.Window, ports_.Images),
      Commit(State, Seat, Events, Repaint, ports_.UserLocale, ports_.Time),
      Pads(State, ports_.Pads),
      Selector(State, Commit, Seat, View, Pads, Events, Repaint),
      Keys(State, Selector, ports_.Container),
      Navigator(State, Commit, Selector, View, Seat, Events),
      Stepper(State, Commit, Seat, Events, ports_.UserLocale),
      Refresher(State, ports_, Cells, Groups, Samples, Keys, Commit, Seat, Pads, View, Repaint),
      Folding(State, Groups, Refresher),
      Spin(State, Stepper, ports_.Time),
      Setter(State, ports_, Cells, Samples, Dates, Refresher, Selector, View),
      Sheets(State, Setter, ports_.UserLocale),
      Lifecycle(State, ports_, Samples, Dates, Refresher, Setter),
      Results(State, Pads, Seat, Events, Repaint),
      Listpad(Results, ports_),
      DatePad(Results, Cells, Dates, ports_.UserLocale, ports_.Time),
      CalcPad(Results, ports_),
      PadKeys(Pads, Listpad, DatePad),
      DropDown(State, {Pads, Results, Listpad, DatePad, CalcPad, Commit, Stepper, Selector, Events, Repaint},
               ports_.Container, ports_.Time),
      Mouse(State, {Selector, DropDown, Pads, Spin, Folding, Events, Repaint}, ports_.Window,
            ports_.Container, ports_.Images),
      PointerKeys(State, Mouse, Stepper, Navigator, Events),
      Editor(State, Seat, {Commit, Navigator, Stepper, Folding, PadKeys, DropDown, PointerKeys}, Events,
             ports_.UserLocale),
      Drops(State, Selector, Commit, Stepper, Seat),
      Records(State, Cells, Seat, Repaint),
      Painter(State, Groups, ports_.Images) {
    State.UserMode = ports_.Container.UserMode();
}

void GridCore::SetLocale(const Locale& locale) {
    if (State.Terminated) return;
    Commit.CommitInPlace();
    if (State.Terminated) return;
    ports_.UserLocale = locale;
    for (const auto& cell : Cells)
        CellAccess::SpoilText(*cell);
    State.ResortNeeded = true;
    Refresher.Refresh();
}

void GridCore::Terminate() {
    if (State.Terminated) return;
    Events.Terminate();
    State.CommitBusy = true; // a focus that moves now takes nothing over
    Spin.Stop();
    Pads.Terminate();
    Seat.Hide();
    State.Terminated = true;
    ImageList.SetSource(nullptr);
    State.Working = nullptr;
    State.Current.reset();
    State.Rows.Clear();
    Cells.SetOwner(nullptr);
    Cells.Clear();
    Sheets.Terminate();
    Groups.SetOwner(nullptr);
    Groups.Clear();
    Columns.Clear();
    Samples.Clear();
}

void GridCore::FocusGained() {
    if (State.Terminated || !State.UserMode) return;
    const bool edited = Seat.IsEdited();
    CallBack();
    if (!Selector.Select(std::max(State.CurrentRow, 1))) return;
    if (!edited) Seat.Refill(); // selects the whole text
}

void GridCore::CallBack() {
    State.Left = false;
    State.CalledBack = true;
}

void GridCore::FocusLost() {
    if (State.Terminated || !State.UserMode) return;
    Pads.Hide();
    Spin.Stop();
    const FlagGuard leaving(State.LeavingFocus);
    State.CalledBack = false;
    const CommitResult result = Commit.Commit(); // nothing where a handler of a commit sent the focus away
    if (State.Terminated || State.CalledBack) return;
    if (result == CommitResult::Cancelled) {
        Seat.TakeFocus();
        return;
    }
    State.Left = true;
    Seat.Hide();
    Repaint.Row(State.CurrentRow);
    Repaint.Tips();
}

void GridCore::AcceptAll() {
    for (const auto& cell : Cells)
        CellAccess::SetChanged(*cell, false);
}

void GridCore::UndoAll() {
    for (const auto& cell : Cells)
        cell->Undo();
}

CellDefaults GridCore::Defaults() const {
    const GridSettings& settings = State.Settings;
    return {settings.CellForeColor, settings.FillColor, settings.CellFont.Bold, settings.CellFont.Italic};
}

void GridCore::SetBusyPointer(bool busy) {
    if (!State.Terminated) ports_.Window.SetPointer(busy ? MousePointer::Busy : MousePointer::Default);
}

void GridCore::OrderChanged() {
    State.ResortNeeded = true;
    if (State.UserMode) State.Settings.CellCount = Cells.Count();
}

void GridCore::CellRemoved(Cell& cell) {
    State.ResortNeeded = true;
    if (State.Working == &cell) State.Working = nullptr;
    Spin.Forget(cell);
    Pads.Forget(cell);
    const std::int32_t row = State.RowOf(cell);
    if (row == 0) return;
    const bool wasCurrent = State.Current.get() == &cell;
    State.Rows.Remove(row);
    if (!wasCurrent) {
        if (row < State.CurrentRow) --State.CurrentRow;
    } else {
        State.CurrentRow = std::min(State.CurrentRow, State.RowCount());
        State.Current = State.RowCell(State.CurrentRow);
    }
    State.FirstVisible = State.LimitedFirstVisible(State.FirstVisible);
    Seat.Seat();
    Repaint.Rows();
}

void GridCore::CellsCleared() {
    State.ResortNeeded = true;
    State.Working = nullptr;
    Spin.Stop();
    Pads.Hide();
    State.Current.reset();
    State.CurrentRow = 0;
    State.FirstVisible = 1;
    State.Rows.Clear();
    Seat.Hide();
}

void GridCore::RepaintRow(Cell& cell) {
    if (State.Silent || State.Terminated) return;
    Repaint.Row(State.RowOf(cell));
    if (State.Current.get() == &cell) Seat.Seat();
}

void GridCore::ValueUndone(Cell& cell) {
    if (State.Current.get() == &cell) Seat.Refill();
}

void GridCore::FocusCell(Cell& cell) {
    const auto self = shared_from_this();
    const std::int32_t row = State.RowOf(cell);
    if (row == 0 || !State.UserMode) return;
    CallBack();
    if (Selector.Select(row)) Seat.TakeFocus();
}

} // namespace quillgrid
