#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/pads/ListPadCore.h"
#include "quillgrid/pads/PadPorts.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace quillgrid {

class Canvas;
class PropertyBag;

/// The list that a cell drops down. Its host hands keys, mouse and painting on, commits at `ValueChange` and
/// hides the pad at `CloseUp`. Only entries in view are ever looked at (all of them with AutoSize). Handlers
/// of events may destroy it.
class QUILLGRID_EXPORT QGInputList {
public:
    /// The current row was set, maybe to what it was.
    Event<> ValueChange;
    /// The user is done.
    Event<> CloseUp;

    /// The pad has the defaults of all properties until the host reads others.
    explicit QGInputList(const InputListPorts& ports);
    QGInputList(const QGInputList&) = delete;
    QGInputList& operator=(const QGInputList&) = delete;

    void InitProperties();
    void ReadProperties(const PropertyBag& bag);
    void WriteProperties(PropertyBag& bag) const;

    // Published properties; setting one lays out, and reports it to the container (ShowFocusRect aside).

    PopupBorderstyleConstants BorderStyle() const { return core_.Settings().BorderStyle; }
    void SetBorderStyle(PopupBorderstyleConstants style);
    const quillgrid::Font& Font() const { return core_.Settings().Font; }
    void SetFont(quillgrid::Font font);
    std::int32_t VisibleRows() const { return core_.Settings().VisibleRows; }
    /// Limited to 1..99; the present number does nothing.
    void SetVisibleRows(std::int32_t rows);
    Colour BackColor() const { return core_.Settings().BackColor; }
    void SetBackColor(Colour colour);
    bool AutoSize() const { return core_.Settings().AutoSize; }
    void SetAutoSize(bool on);
    bool ShowFocusRect() const { return core_.Settings().ShowFocusRect; }
    void SetShowFocusRect(bool show);
    /// The host's list, or null; it outlives the pad.
    void SetImageList(const ImageSource* images);
    Surface& hWnd() { return ports_.Window; }

    // The current row

    /// 0 when there is none.
    std::int32_t ListIndex() const { return core_.ListIndex(); }
    /// 0 without a current row and for data that are no number.
    std::int32_t ItemData() const { return core_.ItemData(); }
    std::string Text() const { return core_.Text(); }
    std::shared_ptr<Listitem> SelectedItem() const { return core_.SelectedItem(); }
    /// How many rows there are, and the entry of one (1-based), null where there is none.
    std::int32_t RowCount() const { return core_.RowCount(); }
    std::shared_ptr<Listitem> Item(std::int32_t row) const { return core_.RowItem(row); }

    // Published methods

    /// Shows the cell's entries with the top left corner at a place of the container, as wide as the cell's
    /// value, and makes the cell's entry the current row.
    void Popup(std::shared_ptr<Cell> cell, float left, float top);
    void Refresh();
    /// Keys and typed characters; all become 0.
    void KeyDown(std::int32_t& keyCode, std::int32_t shift);
    void KeyPress(std::int32_t& character);
    /// Gives the row that typed characters find in the cell, the current one included; a pad that has opened
    /// before is attached to the cell then.
    std::int32_t FindItem(const std::shared_ptr<Cell>& cell, char32_t character);

    // What the host calls

    void Paint(Canvas& canvas, const Rect& area);
    /// A key is let go: after an arrow key, moving the mouse chooses rows again.
    void KeyUp(std::int32_t keyCode, std::int32_t shift);
    void MouseDown(Point point);
    void MouseMove(Point point, bool buttonDown);
    void MouseUp();
    /// Scrolls by rows, positive down; the current row stays.
    void MouseWheel(std::int32_t rows);
    /// The scroll bar stands at another row, counted from 0.
    void ScrollTo(std::int32_t position);
    void FocusGained();
    void FocusLost();
    /// The window has another size; the height is the pad's own affair.
    void Resize();

    const ListPadLayout& Layout() const { return core_.Layout(); }
    std::int32_t ScrollPosition() const { return core_.ScrollPosition(); }

private:
    /// What the window shows.
    struct Shown {
        ListPadLayout Layout;
        std::int32_t Position = 0;
        std::int32_t Highlighted = 0;
        bool FocusRect = false;
    };

    template <typename Act>
    void Do(Act act);
    template <typename Act>
    void LayOut(Act act);
    void Sync();
    void SyncLayout();
    void SyncRows();
    void PlaceScrollBar();
    void InvalidateRow(std::int32_t row);
    void InvalidateAll();
    Rect OnPad(const Rect& area) const;
    bool ArrowHeld() const;

    InputListPorts ports_;
    ListPadCore core_;
    const ImageSource* images_ = nullptr;
    std::optional<Shown> shown_;
    std::optional<std::uint64_t> arrowTick_; ///< when an arrow key last went down that was not let go
    bool laysOut_ = false;
    bool pressed_ = false; ///< a button went down over the rows
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

} // namespace quillgrid
