#include "quillgrid/pads/QGCalcpad.h"

#include "quillgrid/platform/Site.h"
#include "quillgrid/platform/Surface.h"

#include <utility>

namespace quillgrid {

QGCalcpad::QGCalcpad(const CalcpadPorts& ports) : ports_(ports), core_(ports.UserLocale) {
    core_.PropertyChanged.Listen([this](std::string_view key) { ports_.Container.PropertyChanged(key); });
    core_.Machine().Beep.Listen([this] { ports_.Window.Beep(); });
    core_.Machine().ValueChange.Listen([this] {
        Sync();
        ValueChange.Raise();
    });
    core_.Machine().CloseUp.Listen([this] {
        Sync();
        CloseUp.Raise();
    });
    Refresh();
}

void QGCalcpad::InitProperties() {
    core_.SetSettings({});
    Refresh();
}

void QGCalcpad::ReadProperties(const PropertyBag& bag) {
    core_.SetSettings(ReadCalculatorSettings(bag, ports_.UserLocale));
    Refresh();
}

void QGCalcpad::WriteProperties(PropertyBag& bag) const {
    WriteCalculatorSettings(core_.Settings(), bag);
}

/// Redraws what the act has changed, unless a handler has destroyed the pad meanwhile.
template <typename Act>
void QGCalcpad::Do(Act act) {
    const std::weak_ptr<const bool> alive = alive_;
    act();
    if (!alive.expired()) Sync();
}

void QGCalcpad::SetDoublePrecision(bool on) {
    Do([&] { core_.SetDoublePrecision(on); });
}

void QGCalcpad::SetNumSeparators(std::string separators) {
    core_.SetNumSeparators(std::move(separators));
}

void QGCalcpad::SetMin(Variant bound) {
    Do([&] { core_.SetMin(std::move(bound)); });
}

void QGCalcpad::SetMax(Variant bound) {
    Do([&] { core_.SetMax(std::move(bound)); });
}

void QGCalcpad::SetValue(const Variant& value) {
    Do([&] { core_.SetValue(value); });
}

void QGCalcpad::SetImageList(const ImageSource* images) {
    images_ = images;
    core_.SetImages(images);
}

void QGCalcpad::KeyPress(std::int32_t& character) {
    Do([&] { core_.KeyPress(character); });
}

void QGCalcpad::KeyDown(std::int32_t& keyCode, std::int32_t) {
    Do([&] { core_.KeyDown(keyCode); });
}

void QGCalcpad::KeyUp(std::int32_t, std::int32_t) {
    Do([&] { core_.KeyUp(); });
}

void QGCalcpad::ChangeSign() {
    Do([&] { core_.ChangeSign(); });
}

void QGCalcpad::MouseDown(Point point) {
    Do([&] { core_.MouseDown(point); });
}

void QGCalcpad::MouseUp() {
    Do([&] { core_.MouseUp(); });
}

void QGCalcpad::MouseMove(Point point, bool buttonDown) {
    Do([&] { core_.MouseMove(point, buttonDown); });
    ports_.Window.SetTooltip(core_.TooltipAt(point));
    ports_.Window.SetPointer(Layout().KeysArea.Contains(point) ? MousePointer::Hand : MousePointer::Default);
}

void QGCalcpad::MouseLeave() {
    ports_.Window.SetTooltip({});
}

void QGCalcpad::DrawButton(std::int32_t number, bool pressed) {
    if (number < 1 || number > CalculatorKeyCount) return;
    const auto place = static_cast<std::size_t>(number);
    pressed_[place] = pressed;
    ports_.Window.Invalidate(Layout().Keys[place]);
}

void QGCalcpad::DrawValue() {
    drawn_ = {Display(), core_.IsOutOfLimits()};
    ports_.Window.Invalidate(Layout().Well);
}

void QGCalcpad::DefineFormula(std::int32_t index, std::string text, Variant listImage,
                              std::string tooltipText) {
    core_.DefineFormula(index, std::move(text), std::move(listImage), std::move(tooltipText));
    if (index >= 1 && index <= FormulaSlots::Count)
        ports_.Window.Invalidate(Layout().Keys[static_cast<std::size_t>(FirstFormulaKey + index - 1)]);
}

CalculatorMeasures QGCalcpad::Measure() {
    font_ = CalculatorFont(ports_.Metrics, {});
    return MeasureCalculator(ports_.Metrics, font_);
}

void QGCalcpad::Refresh() {
    core_.Refresh(Measure());
    ResizeWindow();
    RepaintAll();
}

void QGCalcpad::Resize() {
    if (laysOut_) return;
    core_.LayOut(Measure());
    ResizeWindow();
    RepaintAll();
}

void QGCalcpad::ResizeWindow() {
    laysOut_ = true;
    ports_.Window.Resize({Layout().Pad.Width(), Layout().Pad.Height()});
    laysOut_ = false;
}

void QGCalcpad::RepaintAll() {
    pressed_.reset();
    pressedKey_ = 0;
    DrawValue();
    const Size inner = ports_.Window.InnerSize();
    ports_.Window.Invalidate({0, 0, inner.Width, inner.Height});
}

void QGCalcpad::Sync() {
    SyncPressedKey();
    if (drawn_ == Drawn{Display(), core_.IsOutOfLimits()}) return;
    DrawValue();
    DisplayChange.Raise();
}

void QGCalcpad::SyncPressedKey() {
    const std::int32_t before = std::exchange(pressedKey_, core_.PressedKey());
    if (before == pressedKey_) return;
    DrawButton(before, false);
    DrawButton(pressedKey_, true);
}

void QGCalcpad::Paint(Canvas& canvas, const Rect& area) {
    CalculatorPainter(canvas, core_, images_, font_).Paint(area, pressed_);
}

} // namespace quillgrid
