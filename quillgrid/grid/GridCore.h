#pragma once

#include "quillgrid/cells/CellOwner.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/CellEditor.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridPainter.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/GridRefresh.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/MouseController.h"
#include "quillgrid/grid/Navigator.h"
#include "quillgrid/grid/RecordBinding.h"
#include "quillgrid/grid/RepaintRequests.h"
#include "quillgrid/grid/RowSelector.h"
#include "quillgrid/grid/ValueStepper.h"
#include "quillgrid/grid/Viewport.h"

#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

/// Wires the collaborators of one control together and answers its cells. Calls under way hold it, so that it
/// outlives a control that a handler destroys; from then on everything in it stops quietly.
class GridCore : public CellOwner, public std::enable_shared_from_this<GridCore> {
public:
    GridCore(const GridPorts& ports, PublishedEvents& events);

    /// The control goes: no event is raised and no port is called any more, and every cell loses its owner.
    void Terminate();
    /// A setter has stored: design time shows it at once, run time at the next Refresh.
    void SettingChanged();
    void FocusGained();
    void FocusLost();
    /// Undo values become the present ones, or the other way round.
    void AcceptAll();
    void UndoAll();
    /// Fills the language-dependent lists anew.
    void RefillLanguage();

private:
    const GridPorts ports_;

public:
    GridState State;
    class Cells Cells;
    class Groups Groups;
    RepaintRequests Repaint;
    GridEvents Events;
    Viewport View;
    EditSeat Seat;
    CellCommit Commit;
    RowSelector Selector;
    class Navigator Navigator;
    ValueStepper Stepper;
    GridRefresh Refresher;
    CellEditor Editor;
    MouseController Mouse;
    RecordBinding Records;
    GridPainter Painter;

    const Locale& UserLocale() const override { return ports_.UserLocale; }
    LanguageConstants Language() const override { return State.Settings.Language; }
    InputSeparators Separators() const override;
    CellDefaults Defaults() const override;
    bool UserMode() const override { return State.UserMode; }
    const Clock& Time() const override { return ports_.Time; }
    const Theme* Desktop() const override { return &ports_.Desktop; }
    const ImageSource* Images() const override { return ports_.Images; }
    const CurrencyConverter* Currencies() const override { return ports_.Currencies; }
    bool Silent() const override { return State.Silent; }
    void SetSilent(bool silent) override { State.Silent = silent; }
    void SetBusyPointer(bool busy) override;
    std::string CurrentGroup() const override { return State.CurrentGroup; }
    void SetCurrentGroup(std::string_view key) override { State.CurrentGroup = key; }
    Cell* ExchangeCurrentCell(Cell* cell) override { return std::exchange(State.Working, cell); }
    void OrderChanged() override { State.ResortNeeded = true; }
    void CellRemoved(Cell& cell) override;
    void CellsCleared() override;
    void RepaintRow(Cell& cell) override;
    void ValueUndone(Cell& cell) override;
    void FocusCell(Cell& cell) override;
};

} // namespace quillgrid
