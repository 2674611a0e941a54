#pragma once

#include "quillgrid/base/Rect.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/PublishedEvents.h"
#include "quillgrid/platform/Canvas.h"
#include "quillgrid/platform/Record.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

class GridCore;

/// The control: a vertical list of labelled cells, one of them edited at a time. Setters store; what they
/// change is seen at the next Refresh (at once while a form designer shows the control).
class Quillgrid : public PublishedEvents {
public:
    /// The ports must outlive the control.
    explicit Quillgrid(const GridPorts& ports);
    ~Quillgrid();
    Quillgrid(const Quillgrid&) = delete;
    Quillgrid& operator=(const Quillgrid&) = delete;

    /// Adds a cell; fails with 20099 (nothing added) when the key is taken. Silent is false afterwards.
    std::shared_ptr<class Cell> Add(const CellArguments& arguments);
    /// Adds a group and its heading row; fails with 20093 when the key is taken.
    void AddGroup(const GroupArguments& arguments);
    class Cells& Cells();
    class Groups& Groups();
    /// The current cell, null when there is none.
    class Cell* Cell() const;
    /// Key of the group added or selected last.
    std::string CurrentGroup() const;
    /// Removes all cells and groups; repaints nothing.
    void Clear();
    /// Sorts where needed, lays out and repaints. Does nothing within itself.
    void Refresh();
    /// Accepts all values (they become the undo values), then refreshes.
    void Update();
    /// Takes all values back to their undo values, then refreshes.
    void Undo();
    bool Changed() const;
    void SetChanged(bool changed);
    /// False when a cell has an error code.
    bool Valid() const;
    bool Silent() const;
    void SetSilent(bool silent);
    /// The message of a validation code; any number of the string table works, another one is error 20099.
    std::string ErrorMessage(std::int32_t errorCode) const;
    /// Fills every cell from the field of its key's name; Null empties the cell. Silent is false afterwards.
    void LoadRecord(const Record& record);
    /// Gives every cell its default, unchanged, for a new record.
    void AddNew();
    /// Takes over what is being typed; false when a handler cancelled (the user must stay in the cell).
    bool CommitEdit();

    quillgrid::Font Font() const;
    void SetFont(const quillgrid::Font& font);
    quillgrid::Font CellFont() const;
    void SetCellFont(const quillgrid::Font& font);
    LanguageConstants Language() const;
    /// Cells whose lists speak a language are refilled at once; their values stay.
    void SetLanguage(LanguageConstants language);
    StyleConstants Style() const;
    /// Fails with 20099 for anything but 0 and 1.
    void SetStyle(StyleConstants style);
    AlignmentConstants Alignment() const;
    /// Labels on the left (0) or the right (1); limited to these.
    void SetAlignment(AlignmentConstants alignment);
    /// Pixels; 0 measures the captions.
    std::int32_t LabelWidth() const;
    /// A negative width counts as 0.
    void SetLabelWidth(std::int32_t width);
    std::int32_t UserLevel() const;
    void SetUserLevel(std::int32_t level);
    bool AllowEnter() const;
    void SetAllowEnter(bool allow);
    bool AllowWrap() const;
    void SetAllowWrap(bool allow);
    bool AllowEscape() const;
    void SetAllowEscape(bool allow);
    std::string NumSeparators() const;
    /// A missing "," then a missing "." is put in front.
    void SetNumSeparators(std::string_view separators);
    std::string DateSeparators() const;
    /// A missing "/" then a missing "." is put in front.
    void SetDateSeparators(std::string_view separators);
    std::string TimeSeparators() const;
    /// A missing ":" is put in front.
    void SetTimeSeparators(std::string_view separators);
    std::string PasswordChar() const;
    /// The first character counts; an empty text means "*".
    void SetPasswordChar(std::string_view character);
    bool UseSystemColors() const;
    void SetUseSystemColors(bool use);
    Colour BackColor() const;
    void SetBackColor(Colour colour);
    Colour CellForeColor() const;
    void SetCellForeColor(Colour colour);
    Colour CellForeColorDisabled() const;
    void SetCellForeColorDisabled(Colour colour);
    Colour CellForeColorError() const;
    void SetCellForeColorError(Colour colour);
    Colour CellBackColor() const;
    void SetCellBackColor(Colour colour);
    Colour CellBackColorDisabled() const;
    void SetCellBackColorDisabled(Colour colour);
    Colour LabelForeColor() const;
    void SetLabelForeColor(Colour colour);
    Colour LabelForeColorFocus() const;
    void SetLabelForeColorFocus(Colour colour);
    Colour LabelBackColor() const;
    void SetLabelBackColor(Colour colour);
    Colour LabelBackColorFocus() const;
    void SetLabelBackColorFocus(Colour colour);
    Colour Gridcolor() const;
    void SetGridcolor(Colour colour);
    /// Percent bars of cells that are defined from now on.
    Colour FillColor() const;
    void SetFillColor(Colour colour);
    BorderStyleConstants BorderStyle() const;
    void SetBorderStyle(BorderStyleConstants style);
    std::int32_t BorderWidth() const;
    /// Limited to 0..999.
    void SetBorderWidth(std::int32_t width);
    std::int32_t BevelWidth() const;
    /// Limited to 0..99.
    void SetBevelWidth(std::int32_t width);
    bool Grouped() const;
    void SetGrouped(bool grouped);
    bool Sorted() const;
    void SetSorted(bool sorted);

    // The host calls inward.

    /// The surface has another size.
    void Resize();
    /// Paints what lies in `dirty`.
    void Paint(Canvas& canvas, const Rect& dirty);
    /// Each key comes here before the edit box sees it. True: it was used up and must not reach the edit box.
    bool KeyDown(std::int32_t keyCode, std::int32_t shift);
    /// True: used up. Otherwise the (possibly changed) character goes on to the edit box.
    bool KeyPress(char32_t& character);
    /// After the edit box has handled the key.
    void KeyUp(std::int32_t keyCode, std::int32_t shift);
    /// Left button.
    void MouseDown(Point position);
    /// In the edit box.
    void DoubleClick(Point position);
    /// Scrolls by rows (positive: down); never edits.
    void MouseWheel(std::int32_t rows);
    /// The scroll bar's value, 1-based; the bar is set back when a handler keeps the user in the cell.
    void ScrollTo(std::int32_t firstVisibleRow);
    /// Control or edit box received the focus from outside.
    void FocusGained();
    /// The focus left the control and its edit box.
    void FocusLost();

    // What a host asks.

    /// Whether a paste, a drop or composed text may go into the edit box; hosts beep otherwise.
    bool PasteAllowed() const;
    /// Where the cell's value stands on the surface; empty when it is out of view.
    Rect ValueArea(const class Cell& cell) const;
    std::int32_t RowCount() const;
    /// 1-based; 0 without rows.
    std::int32_t CurrentRow() const;
    std::int32_t FirstVisibleRow() const;
    /// Whole rows that fit.
    std::int32_t VisibleRows() const;
    /// The cell of a row (1-based), null outside.
    class Cell* RowCell(std::int32_t row) const;
    Size MinimumSize() const;

private:
    std::shared_ptr<GridCore>
        core_; // shared with the calls under way, so that a handler may destroy the control
};

} // namespace quillgrid
