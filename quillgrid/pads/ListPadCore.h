#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/cells/Cell.h"
#include "quillgrid/pads/ListPadLayout.h"
#include "quillgrid/pads/ListPadSearch.h"
#include "quillgrid/pads/ListPadSettings.h"
#include "quillgrid/platform/ImageSource.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

class Clock;
class TextMetrics;
class Theme;

/// What the list pad asks of its host; all outlive the pad.
struct ListPadPorts {
    const TextMetrics& Metrics;
    const Clock& Time;
    const Theme* Desktop = nullptr; ///< null: no scroll bar width
    bool UserMode = true;           ///< false in a designer
};

/// Everything of the list pad but its window and its drawing: properties, layout, the current row, scrolling,
/// keyboard and mouse. The entries are read live from the cell, and only those in view (all of them where
/// AutoSize has to find the widest). Handlers of events may destroy the pad.
class QUILLGRID_EXPORT ListPadCore {
public:
    /// The current row was set, maybe to what it was.
    Event<> ValueChange;
    /// The user is done.
    Event<> CloseUp;
    /// A persisted property was set: its key in the property bag.
    Event<std::string_view> PropertyChanged;

    static constexpr std::string_view SampleText = "Sample List Item";

    explicit ListPadCore(const ListPadPorts& ports, ListPadSettings settings = {});
    ListPadCore(const ListPadCore&) = delete;
    ListPadCore& operator=(const ListPadCore&) = delete;

    // Properties; setting one lays the pad out.

    const ListPadSettings& Settings() const { return settings_; }
    /// All the properties at once, as from a property bag; nothing is reported.
    void SetSettings(ListPadSettings settings);
    void SetBorderStyle(PopupBorderstyleConstants style);
    void SetFont(quillgrid::Font font);
    /// Limited to 1..99; the present number does nothing.
    void SetVisibleRows(std::int32_t rows);
    void SetBackColor(Colour colour);
    void SetAutoSize(bool on);
    void SetShowFocusRect(bool show);
    /// The host's list, or null; its size is recorded.
    void SetImages(const ImageSource* images);

    // Opening: attach, show the window, select.

    /// Takes a cell's entries and width, and lays out.
    void Attach(std::shared_ptr<Cell> cell);
    /// Makes the cell's entry the current row, which Escape comes back to.
    void SelectCellEntry();
    void Refresh() { LayOut(); }
    /// The host gave the window another width.
    void Resize(std::int32_t width);

    // What is shown

    const ListPadLayout& Layout() const { return layout_; }
    /// How many rows are scrolled out at the top.
    std::int32_t ScrollPosition() const { return position_; }
    void ScrollTo(std::int32_t position);
    const std::shared_ptr<Cell>& AttachedCell() const { return cell_; }
    /// How many rows there are; without a cell as many samples as are shown.
    std::int32_t RowCount() const;
    /// The entry of a row; nothing for samples and where there is none.
    std::shared_ptr<Listitem> RowItem(std::int32_t row) const;
    /// Colour lists show a swatch of each entry's data.
    bool HasSwatches() const;
    /// The font of a row: its own in a list of fonts.
    Font FontOf(const Listitem& item) const;
    /// The row drawn in highlight colours, 0 for none: a layout draws every row in normal ones.
    std::int32_t HighlightedRow() const { return highlighted_; }
    /// Whether the highlighted row has a focus rectangle.
    bool FocusRectShown() const { return highlighted_ > 0 && settings_.ShowFocusRect && !focusRectErased_; }

    // The current row

    /// 0 when there is none.
    std::int32_t ListIndex() const { return current_ < 1 ? 0 : current_; }
    /// 0 without a current row and for data that are no number.
    std::int32_t ItemData() const;
    std::string Text() const;
    std::shared_ptr<Listitem> SelectedItem() const { return RowItem(ListIndex()); }
    /// Gives the row that typed characters find in the cell, to which a pad that has opened before is
    /// attached then; see ListPadSearch.
    std::int32_t FindItem(const std::shared_ptr<Cell>& cell, char32_t character);

    // Keyboard and mouse; codes become 0, heights count from the top of the rows in view.

    void KeyDown(std::int32_t& keyCode);
    void KeyPress(std::int32_t& character);
    /// `arrowHeld`: Up or Down is pressed, so that a resting pointer must not fight the keyboard.
    void MouseMove(std::int32_t y, bool arrowHeld);
    void MouseDown(std::int32_t y);
    void MouseUp() { CloseUp.Raise(); }
    void FocusGained();
    void FocusLost() { focusRectErased_ = true; }

private:
    template <typename T>
    void Set(T ListPadSettings::*field, T value, std::string_view key);
    void LayOut();
    ListPadMeasures Measure() const;
    std::int32_t WidestText() const;
    std::int32_t ImageColumn() const;
    const Listitems& Items() const;
    /// Makes a row current, within the rows there are. False when a handler has destroyed the pad.
    bool SetCurrent(std::int64_t row);
    /// Lets one row in at the edge that the current row has left.
    void FollowByOneRow();
    void EnsureVisible();
    void Move(std::int64_t row, bool jump);
    void TypeAhead(char32_t character);

    ListPadPorts ports_;
    ListPadSettings settings_;
    ListPadLayout layout_;
    ListPadSearch search_;
    std::shared_ptr<Cell> cell_;
    CellTemplateConstants template_ = qgctNone; ///< the cell's when the pad opened
    Size imageSize_;
    std::int32_t imageColumn_ = 0;
    std::int32_t padWidth_ = 0;
    std::int32_t current_ = 0;
    std::int32_t opened_ = 0; ///< the current row when the pad opened
    std::int32_t position_ = 0;
    std::int32_t highlighted_ = 0;
    bool focusRectErased_ = false;
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

} // namespace quillgrid
