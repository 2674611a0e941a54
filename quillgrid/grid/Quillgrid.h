#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/platform/Canvas.h"
#include "quillgrid/platform/Record.h"

#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

/// The control. DRAFT of the surface that the first form needs; grows with its issues.
class Quillgrid {
public:
    explicit Quillgrid(GridPorts ports);
    ~Quillgrid();

    // Cells
    std::shared_ptr<class Cell> Add(CellArguments arguments); // aggregate of Cells::Add
    void AddGroup(GroupArguments arguments);
    class Cells& Cells();
    class Groups& Groups();
    class Cell* Cell() const; ///< the current cell
    void Clear();
    void Refresh();
    void Update();
    void Undo();
    bool Changed() const;
    void SetChanged(bool changed);
    bool Valid() const;
    bool Silent() const;
    void SetSilent(bool silent);
    std::string ErrorMessage(std::int32_t errorCode) const;
    void LoadRecord(const Record& record);
    void AddNew();
    /// Takes over what is being typed; false when a handler cancelled (the user must stay in the cell).
    bool CommitEdit();

    // Settings of the slice: Language, Font, CellFont, separators, LabelWidth, Style, AllowEnter, AllowWrap,
    // AllowEscape, UserLevel, PasswordChar, the colours. A property X is X() and SetX(value).

    // Events
    Event<class Cell&, ValidationErrConstants&, bool&> ValidateCellError;
    Event<class Cell&, bool&> ValidateCell;
    Event<class Cell&> SelChange;
    Event<class Cell&> Change;
    Event<> Beep;
    Event<class Cell&, std::int16_t&> KeyPressed;
    Event<class Cell&> LeaveFocus;

    // The host calls inward
    void Resize();
    void Paint(Canvas& canvas, const Rect& dirty);
    /// True when the key was used up and must not reach the edit box.
    bool KeyDown(std::int32_t keyCode, std::int32_t shift);
    bool KeyPress(char32_t& character);
    void KeyUp(std::int32_t keyCode, std::int32_t shift);
    void MouseDown(Point position);
    void DoubleClick(Point position);
    void MouseWheel(std::int32_t rows);
    void ScrollTo(std::int32_t firstVisibleRow);
    void FocusGained();
    void FocusLost();
};

} // namespace quillgrid
