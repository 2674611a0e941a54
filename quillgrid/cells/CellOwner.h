#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/cells/InputConversion.h"
#include "quillgrid/locale/Locale.h"

#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

class Cell;
class Clock;
class CurrencyConverter;
class ImageSource;
class Properties;
class Record;
class Theme;

/// What a new cell takes over from its control.
struct CellDefaults {
    Colour CellForeColor = ColourWindowText;
    Colour FillColor = ColourDesktop;
    bool FontBold = false;
    bool FontItalic = false;
};

/// What cells and their collections ask of the control that owns them.
class CellOwner {
public:
    virtual ~CellOwner() = default;

    virtual const Locale& UserLocale() const = 0;
    virtual LanguageConstants Language() const = 0;
    virtual InputSeparators Separators() const = 0;
    virtual CellDefaults Defaults() const = 0;
    /// False at design time.
    virtual bool UserMode() const = 0;

    virtual const Clock& Time() const = 0;
    /// Null when the host has none.
    virtual const quillgrid::Theme* Desktop() const = 0;
    virtual const ImageSource* Images() const = 0;
    virtual const CurrencyConverter* Currencies() const = 0;

    virtual bool Silent() const = 0;
    virtual void SetSilent(bool silent) = 0;
    virtual void SetBusyPointer(bool busy) = 0;

    virtual std::string CurrentGroup() const = 0;
    virtual void SetCurrentGroup(std::string_view key) = 0;

    /// Makes a cell the one being worked on (null: none) and returns the one before.
    virtual Cell* ExchangeCurrentCell(Cell* cell) = 0;

    /// A cell is about to be added: sample cells make room.
    virtual void AddingCell() = 0;
    /// The order or the grouping of the rows must be rebuilt.
    virtual void OrderChanged() = 0;
    /// A cell left the control; whoever still shows it lets go.
    virtual void CellRemoved(Cell& cell) = 0;
    /// All cells left the control.
    virtual void CellsCleared() = 0;
    /// Paints the cell's row again and re-seats the edit box when it is the current one.
    virtual void RepaintRow(Cell& cell) = 0;
    /// `Undo` ran: the edit box of the current cell shows the value again.
    virtual void ValueUndone(Cell& cell) = 0;
    virtual void FocusCell(Cell& cell) = 0;

    /// The property sheet of the current cell.
    virtual std::shared_ptr<quillgrid::Properties> CellSheet() = 0;
    /// Sets the properties of the current cell from the fields of a record.
    virtual void DefineCurrentCell(const Record& record) = 0;
};

} // namespace quillgrid
