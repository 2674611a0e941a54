#include "quillgrid/pads/QGInputList.h"

#include "quillgrid/pads/ListPadPainter.h"
#include "quillgrid/pads/PadKeyCodes.h"
#include "quillgrid/platform/Clock.h"
#include "quillgrid/platform/PadPlace.h"
#include "quillgrid/platform/ScrollBar.h"
#include "quillgrid/platform/Site.h"
#include "quillgrid/platform/Surface.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillgrid {

namespace {

/// A key that repeats comes again within this time; beyond it, letting go went unseen.
constexpr std::uint64_t LongestKeyPause = 1000;
constexpr double FarthestPlace = 1'000'000.0;

std::int32_t WholePixel(double place) {
    return std::isnan(place)
               ? 0
               : static_cast<std::int32_t>(std::lround(std::clamp(place, -FarthestPlace, FarthestPlace)));
}

bool IsUpOrDown(std::int32_t keyCode) {
    return keyCode == padkey::Up || keyCode == padkey::Down;
}

} // namespace

QGInputList::QGInputList(const InputListPorts& ports)
    : ports_(ports),
      core_({ports.Metrics, ports.Time, &ports.Desktop, ports.Container.UserMode()},
            {.Font = ports.Container.AmbientFont()}) {
    core_.PropertyChanged.Listen([this](std::string_view key) { ports_.Container.PropertyChanged(key); });
    core_.ValueChange.Listen([this] {
        Sync();
        ValueChange.Raise();
    });
    core_.CloseUp.Listen([this] { CloseUp.Raise(); });
    Sync();
}

/// Shows what the act has changed, unless a handler has destroyed the pad meanwhile.
template <typename Act>
void QGInputList::Do(Act act) {
    const std::weak_ptr<const bool> alive = alive_;
    act();
    if (!alive.expired()) Sync();
}

/// The new layout is shown as a whole even where all stays in its place: borders, letters and colours of the
/// same measures are different nevertheless.
template <typename Act>
void QGInputList::LayOut(Act act) {
    shown_.reset();
    Do(act);
}

void QGInputList::InitProperties() {
    LayOut([&] { core_.SetSettings({.Font = ports_.Container.AmbientFont()}); });
}

void QGInputList::ReadProperties(const PropertyBag& bag) {
    LayOut([&] {
        core_.SetSettings(ReadListPadSettings(bag, ports_.Container.AmbientFont(), ports_.UserLocale));
    });
}

void QGInputList::WriteProperties(PropertyBag& bag) const {
    WriteListPadSettings(core_.Settings(), ports_.Container.AmbientFont(), bag);
}

void QGInputList::SetBorderStyle(PopupBorderstyleConstants style) {
    LayOut([&] { core_.SetBorderStyle(style); });
}

void QGInputList::SetFont(quillgrid::Font font) {
    LayOut([&] { core_.SetFont(std::move(font)); });
}

void QGInputList::SetVisibleRows(std::int32_t rows) {
    LayOut([&] { core_.SetVisibleRows(rows); });
}

void QGInputList::SetBackColor(Colour colour) {
    LayOut([&] { core_.SetBackColor(colour); });
}

void QGInputList::SetAutoSize(bool on) {
    LayOut([&] { core_.SetAutoSize(on); });
}

void QGInputList::SetShowFocusRect(bool show) {
    LayOut([&] { core_.SetShowFocusRect(show); });
}

void QGInputList::SetImageList(const ImageSource* images) {
    images_ = images;
    core_.SetImages(images);
}

void QGInputList::Popup(std::shared_ptr<Cell> cell, float left, float top) {
    if (!cell) return;
    const std::weak_ptr<const bool> alive = alive_;
    arrowTick_.reset();
    core_.Attach(std::move(cell));
    ports_.Place.MoveTo(
        {WholePixel(ports_.Container.ToPixels(left)), WholePixel(ports_.Container.ToPixels(top))});
    Sync();
    ports_.Place.Show();
    ports_.Window.SetPointer(MousePointer::Default);
    core_.SelectCellEntry();
    if (alive.expired()) return;
    Sync();
    InvalidateAll();
}

void QGInputList::Refresh() {
    LayOut([&] { core_.Refresh(); });
}

void QGInputList::KeyDown(std::int32_t& keyCode, std::int32_t) {
    if (IsUpOrDown(keyCode)) arrowTick_ = ports_.Time.TickCount();
    Do([&] { core_.KeyDown(keyCode); });
}

void QGInputList::KeyUp(std::int32_t keyCode, std::int32_t) {
    if (IsUpOrDown(keyCode)) arrowTick_.reset();
}

void QGInputList::KeyPress(std::int32_t& character) {
    Do([&] { core_.KeyPress(character); });
}

std::int32_t QGInputList::FindItem(const std::shared_ptr<Cell>& cell, char32_t character) {
    return core_.FindItem(cell, character);
}

Rect QGInputList::OnPad(const Rect& area) const {
    return area.Moved(Layout().Frame.Left, Layout().Frame.Top);
}

bool QGInputList::ArrowHeld() const {
    return arrowTick_ && ports_.Time.TickCount() - *arrowTick_ < LongestKeyPause;
}

void QGInputList::MouseDown(Point point) {
    pressed_ = OnPad(Layout().Rows).Contains(point);
    if (pressed_) Do([&] { core_.MouseDown(point.Y - Layout().Frame.Top); });
}

// A press over the rows holds the mouse: dragging it out above or below scrolls.
void QGInputList::MouseMove(Point point, bool buttonDown) {
    if (!OnPad(Layout().Rows).Contains(point) && !(pressed_ && buttonDown)) return;
    Do([&] { core_.MouseMove(point.Y - Layout().Frame.Top, ArrowHeld()); });
}

void QGInputList::MouseUp() {
    if (std::exchange(pressed_, false)) core_.MouseUp();
}

void QGInputList::MouseWheel(std::int32_t rows) {
    ScrollTo(static_cast<std::int32_t>(
        std::clamp<std::int64_t>(std::int64_t{ScrollPosition()} + rows, 0, Layout().ScrollMaximum)));
}

void QGInputList::ScrollTo(std::int32_t position) {
    core_.ScrollTo(position);
    Sync();
}

void QGInputList::FocusGained() {
    Do([&] { core_.FocusGained(); });
}

void QGInputList::FocusLost() {
    arrowTick_.reset();
    core_.FocusLost();
    Sync();
}

void QGInputList::Resize() {
    if (laysOut_) return;
    LayOut([&] { core_.Resize(ports_.Window.InnerSize().Width); });
}

void QGInputList::Sync() {
    if (!shown_ || shown_->Layout != Layout()) return SyncLayout();
    SyncRows();
}

void QGInputList::SyncLayout() {
    shown_ = Shown{Layout(), ScrollPosition(), core_.HighlightedRow(), core_.FocusRectShown()};
    laysOut_ = true;
    ports_.Window.SetBackColour(BackColor());
    ports_.Window.Resize(Layout().Pad);
    laysOut_ = false;
    PlaceScrollBar();
    InvalidateAll();
}

void QGInputList::PlaceScrollBar() {
    if (!Layout().ScrollBarShown()) return ports_.Bar.Hide();
    ports_.Bar.SetRange(0, Layout().ScrollMaximum, Layout().ShownRows);
    ports_.Bar.SetValue(ScrollPosition());
    ports_.Bar.Place(OnPad(Layout().ScrollBar));
}

void QGInputList::SyncRows() {
    const Shown before =
        std::exchange(*shown_, {Layout(), ScrollPosition(), core_.HighlightedRow(), core_.FocusRectShown()});
    if (before.Position != shown_->Position) {
        ports_.Bar.SetValue(ScrollPosition());
        return ports_.Window.Invalidate(OnPad(Layout().Rows));
    }
    if (before.Highlighted == shown_->Highlighted && before.FocusRect == shown_->FocusRect) return;
    InvalidateRow(before.Highlighted);
    InvalidateRow(shown_->Highlighted);
}

void QGInputList::InvalidateRow(std::int32_t row) {
    const Rect area = Layout().RowAt(row, ScrollPosition()).Area;
    const bool inView = area.Bottom > Layout().Rows.Top && area.Top < Layout().Rows.Bottom;
    if (row > 0 && inView) ports_.Window.Invalidate(OnPad(area));
}

void QGInputList::InvalidateAll() {
    ports_.Window.Invalidate({0, 0, Layout().Pad.Width, Layout().Pad.Height});
}

void QGInputList::Paint(Canvas& canvas, const Rect& area) {
    ListPadPainter(canvas, core_, images_).Paint(area);
}

} // namespace quillgrid
