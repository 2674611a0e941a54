#include "quillgrid/pads/ListPadCore.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/CellOwner.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/pads/PadKeyCodes.h"
#include "quillgrid/platform/Clock.h"
#include "quillgrid/platform/TextMetrics.h"
#include "quillgrid/platform/Theme.h"

#include <algorithm>
#include <utility>

namespace quillgrid {

namespace {

constexpr std::int32_t SwatchColumn = 16;
constexpr std::int32_t LeastTextWidth = 50;

} // namespace

ListPadCore::ListPadCore(const ListPadPorts& ports, ListPadSettings settings)
    : ports_(ports), settings_(std::move(settings)) {
    LayOut();
}

void ListPadCore::SetSettings(ListPadSettings settings) {
    settings_ = std::move(settings);
    LayOut();
}

template <typename T>
void ListPadCore::Set(T ListPadSettings::*field, T value, std::string_view key) {
    settings_.*field = std::move(value);
    LayOut();
    PropertyChanged.Raise(key);
}

void ListPadCore::SetBorderStyle(PopupBorderstyleConstants style) {
    Set(&ListPadSettings::BorderStyle, style, "BorderStyle");
}

void ListPadCore::SetFont(quillgrid::Font font) {
    Set(&ListPadSettings::Font, std::move(font), "Font");
}

void ListPadCore::SetVisibleRows(std::int32_t rows) {
    if (rows == settings_.VisibleRows) return;
    Set(&ListPadSettings::VisibleRows,
        std::clamp(rows, ListPadSettings::FewestRows, ListPadSettings::MostRows), "VisibleRows");
}

void ListPadCore::SetBackColor(Colour colour) {
    Set(&ListPadSettings::BackColor, colour, "BackColor");
}

void ListPadCore::SetAutoSize(bool on) {
    Set(&ListPadSettings::AutoSize, on, "AutoSize");
}

void ListPadCore::SetShowFocusRect(bool show) {
    settings_.ShowFocusRect = show;
    LayOut();
}

void ListPadCore::SetImages(const ImageSource* images) {
    imageSize_ = images ? images->ImageSize() : Size{};
}

void ListPadCore::Attach(std::shared_ptr<Cell> cell) {
    if (!cell) return;
    cell_ = std::move(cell);
    template_ = cell_->Template();
    imageColumn_ = ImageColumn();
    padWidth_ = cell_->Width();
    LayOut();
}

void ListPadCore::SelectCellEntry() {
    if (!cell_) return;
    opened_ = cell_->ListIndex();
    if (RowCount() < 1) current_ = 0;
    if (SetCurrent(opened_)) EnsureVisible();
}

void ListPadCore::Resize(std::int32_t width) {
    padWidth_ = width;
    LayOut();
}

void ListPadCore::LayOut() {
    layout_ = LayOutListPad(settings_, Measure());
    padWidth_ = layout_.Pad.Width;
    position_ = 0;
    highlighted_ = 0;
}

ListPadMeasures ListPadCore::Measure() const {
    return {.RowCount = RowCount(),
            .TextHeight = ports_.Metrics.LineHeight(settings_.Font),
            .TextWidth = settings_.AutoSize ? WidestText() : 0,
            .ImageColumnWidth = imageColumn_,
            .ImageHeight = imageSize_.Height,
            .ScrollBarWidth = ports_.Desktop ? ports_.Desktop->ScrollBarWidth() : 0,
            .CellWidth = cell_ ? cell_->Width() : 0,
            .PadWidth = padWidth_};
}

std::int32_t ListPadCore::WidestText() const {
    if (!ports_.UserMode) return ports_.Metrics.TextWidth(settings_.Font, SampleText);
    std::int32_t widest = LeastTextWidth;
    if (!cell_) return widest;
    for (const auto& item : Items())
        widest = std::max(widest, ports_.Metrics.TextWidth(settings_.Font, item->Text()));
    return widest;
}

bool ListPadCore::HasSwatches() const {
    return template_ == qgctColor || template_ == qgctSysColor;
}

std::int32_t ListPadCore::ImageColumn() const {
    if (HasSwatches()) return SwatchColumn;
    return Items().HasImages() ? imageSize_.Width : 0;
}

const Listitems& ListPadCore::Items() const {
    return std::as_const(*cell_).Listitems();
}

std::int32_t ListPadCore::RowCount() const {
    return cell_ ? Items().Count() : settings_.VisibleRows;
}

std::shared_ptr<Listitem> ListPadCore::RowItem(std::int32_t row) const {
    return cell_ && row >= 1 ? Items().At(static_cast<std::size_t>(row)) : nullptr;
}

Font ListPadCore::FontOf(const Listitem& item) const {
    Font font = settings_.Font;
    if (template_ != qgctFont) return font;
    font.Name = item.Text();
    font.Bold = false;
    return font;
}

std::int32_t ListPadCore::ItemData() const {
    const auto item = SelectedItem();
    if (!item) return 0;
    const auto* owner = CellAccess::Owner(*cell_);
    return ToLong(item->ItemData(), owner ? owner->UserLocale() : Locale{}).value_or(0);
}

std::string ListPadCore::Text() const {
    const auto item = SelectedItem();
    return item ? item->Text() : std::string();
}

std::int32_t ListPadCore::FindItem(const std::shared_ptr<Cell>& cell, char32_t character) {
    if (!cell) return 0;
    if (cell_) cell_ = cell; // before it first opens the pad shows samples
    return search_.Find(std::as_const(*cell).Listitems(), cell->ListIndex(), character,
                        ports_.Time.TickCount());
}

bool ListPadCore::SetCurrent(std::int64_t row) {
    if (!cell_ || RowCount() < 1) return true;
    current_ = static_cast<std::int32_t>(std::clamp<std::int64_t>(row, 1, RowCount()));
    highlighted_ = current_;
    focusRectErased_ = false;
    FollowByOneRow();
    const std::weak_ptr<const bool> alive = alive_;
    ValueChange.Raise();
    return !alive.expired();
}

void ListPadCore::FollowByOneRow() {
    if (current_ <= position_) {
        ScrollTo(position_ - 1);
    } else if (current_ - layout_.ShownRows > position_) {
        ScrollTo(position_ + 1);
    }
}

void ListPadCore::EnsureVisible() {
    if (current_ <= position_) {
        ScrollTo(current_ - 1);
    } else if (current_ - layout_.ShownRows > position_) {
        ScrollTo(current_ - layout_.ShownRows);
    }
}

void ListPadCore::ScrollTo(std::int32_t position) {
    if (layout_.ScrollBarShown()) position_ = std::clamp(position, 0, layout_.ScrollMaximum);
}

void ListPadCore::Move(std::int64_t row, bool jump) {
    if (SetCurrent(row) && jump) EnsureVisible();
}

void ListPadCore::KeyDown(std::int32_t& keyCode) {
    switch (std::exchange(keyCode, 0)) {
    case padkey::Down:
    case padkey::Right: return Move(std::int64_t{current_} + 1, false);
    case padkey::Up:
    case padkey::Left: return Move(std::int64_t{current_} - 1, false);
    case padkey::PageDown: return Move(std::int64_t{current_} + 1, true);
    case padkey::PageUp: return Move(std::int64_t{current_} - 1, true);
    case padkey::Home: return Move(1, true);
    case padkey::End: return Move(RowCount(), true);
    default: return;
    }
}

void ListPadCore::KeyPress(std::int32_t& character) {
    const std::int32_t typed = std::exchange(character, 0);
    switch (typed) {
    case padkey::Enter: return CloseUp.Raise();
    case padkey::Escape:
        if (SetCurrent(opened_)) CloseUp.Raise();
        return;
    case padkey::Space:
        if (SetCurrent(current_)) CloseUp.Raise();
        return;
    default: return TypeAhead(static_cast<char32_t>(typed));
    }
}

void ListPadCore::TypeAhead(char32_t character) {
    if (!cell_ || RowCount() < 1) return;
    const std::weak_ptr<const bool> alive = alive_;
    const std::shared_ptr<Cell> cell = cell_;
    const std::int32_t row = CellAccess::TypeAhead(*cell, character);
    if (!alive.expired()) Move(row, true);
}

void ListPadCore::MouseMove(std::int32_t y, bool arrowHeld) {
    const std::int32_t row = std::max(layout_.RowUnder(y, position_), 1);
    if (!arrowHeld && row != current_) SetCurrent(row);
}

void ListPadCore::MouseDown(std::int32_t y) {
    const std::int32_t row = layout_.RowUnder(y, position_);
    if (row != current_) SetCurrent(row);
}

void ListPadCore::FocusGained() {
    SetCurrent(current_);
}

} // namespace quillgrid
