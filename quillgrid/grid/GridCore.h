#pragma once

#include "quillgrid/cells/CellOwner.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Columns.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/cells/ImageList.h"
#include "quillgrid/euro/QGEuro.h"
#include "quillgrid/grid/CalcDropDown.h"
#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/CellDropDown.h"
#include "quillgrid/grid/CellEditor.h"
#include "quillgrid/grid/DateDropDown.h"
#include "quillgrid/grid/DropTarget.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridCalendar.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridLifecycle.h"
#include "quillgrid/grid/GridPainter.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/GridRefresh.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/ListDropDown.h"
#include "quillgrid/grid/MouseController.h"
#include "quillgrid/grid/Navigator.h"
#include "quillgrid/grid/OpenPads.h"
#include "quillgrid/grid/PadKeys.h"
#include "quillgrid/grid/PadResults.h"
#include "quillgrid/grid/PointerKeys.h"
#include "quillgrid/grid/PropertySetter.h"
#include "quillgrid/grid/PropertySheets.h"
#include "quillgrid/grid/RecordBinding.h"
#include "quillgrid/grid/RepaintRequests.h"
#include "quillgrid/grid/RowSelector.h"
#include "quillgrid/grid/SampleCells.h"
#include "quillgrid/grid/TypedSeparators.h"
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
    void FocusGained();
    void FocusLost();
    /// What is being typed is taken over as it was read so far.
    void SetLocale(const Locale& locale);
    /// Undo values become the present ones, or the other way round.
    void AcceptAll();
    void UndoAll();
    std::shared_ptr<Properties> GridSheet() { return Sheets.GridSheet(); }

private:
    void CallBack();

    QGEuro euro_;
    GridPorts ports_; ///< of which only the locale ever changes

public:
    const GridPorts& Ports() const { return ports_; }

    GridState State;
    TypedSeparators Typed{State.Settings, ports_.UserLocale};
    class Cells Cells;
    class Groups Groups;
    class Columns Columns;
    class ImageList ImageList;
    SampleCells Samples;
    GridCalendar Dates;
    RepaintRequests Repaint;
    GridEvents Events;
    Viewport View;
    EditSeat Seat;
    CellCommit Commit;
    OpenPads Pads;
    RowSelector Selector;
    AccessKeys Keys;
    class Navigator Navigator;
    ValueStepper Stepper;
    GridRefresh Refresher;
    GroupFolding Folding;
    SpinRepeater Spin;
    PropertySetter Setter;
    PropertySheets Sheets;
    GridLifecycle Lifecycle;
    PadResults Results;
    ListDropDown Listpad;
    DateDropDown DatePad;
    CalcDropDown CalcPad;
    class PadKeys PadKeys;
    CellDropDown DropDown;
    MouseController Mouse;
    class PointerKeys PointerKeys;
    CellEditor Editor;
    DropTarget Drops;
    RecordBinding Records;
    GridPainter Painter;

    const Locale& UserLocale() const override { return ports_.UserLocale; }
    LanguageConstants Language() const override { return State.Settings.Language; }
    InputSeparators Separators() const override { return Typed.Get(); }
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
    void AddingCell() override { Samples.MakeRoom(); }
    void OrderChanged() override;
    void CellRemoved(Cell& cell) override;
    void CellsCleared() override;
    void RepaintRow(Cell& cell) override;
    void ValueUndone(Cell& cell) override;
    void FocusCell(Cell& cell) override;
    std::shared_ptr<Properties> CellSheet() override { return Sheets.CellSheet(); }
    void DefineCurrentCell(const Record& record) override { Sheets.DefineCurrentCell(record); }
};

} // namespace quillgrid
