#include "quillgrid/pads/CalculatorCore.h"

#include "quillgrid/pads/PadKeyCodes.h"

#include <utility>

namespace quillgrid {

CalculatorCore::CalculatorCore(Locale locale, CalculatorSettings settings)
    : locale_(std::move(locale)), settings_(std::move(settings)), machine_(settings_, formulas_) {
    Refresh({});
}

void CalculatorCore::SetSettings(CalculatorSettings settings) {
    settings_ = std::move(settings);
    machine_.ChangePrecision();
}

void CalculatorCore::SetDoublePrecision(bool on) {
    settings_.DoublePrecision = on;
    machine_.ChangePrecision();
    Refresh(measures_);
    PropertyChanged.Raise("DoublePrecision");
}

void CalculatorCore::SetNumSeparators(std::string separators) {
    settings_.NumSeparators = std::move(separators);
    PropertyChanged.Raise("NumSeparators");
}

void CalculatorCore::SetMin(Variant bound) {
    settings_.Min = std::move(bound);
    PropertyChanged.Raise("Min");
}

void CalculatorCore::SetMax(Variant bound) {
    settings_.Max = std::move(bound);
    PropertyChanged.Raise("Max");
}

void CalculatorCore::SetValue(const Variant& value) {
    machine_.SetValue(CalculatorNumber::From(value, settings_.NumberPrecision(), locale_));
}

bool CalculatorCore::IsOutOfLimits() const {
    return machine_.Value().IsOutside(settings_.Min, settings_.Max, locale_);
}

void CalculatorCore::DefineFormula(std::int32_t index, std::string text, Variant listImage,
                                   std::string tooltipText) {
    formulas_.Define(index, std::move(text), std::move(listImage), std::move(tooltipText));
}

void CalculatorCore::LayOut(const CalculatorMeasures& measures) {
    measures_ = measures;
    formulas_.InstallDefaults();
    layout_ = LayOutCalculator(measures);
    pressedKey_ = 0; // a layout draws every key released
}

void CalculatorCore::Refresh(const CalculatorMeasures& measures) {
    LayOut(measures);
    formulas_.Rebuild();
}

bool CalculatorCore::Press(std::int32_t& code) {
    const std::weak_ptr<const bool> alive = alive_;
    machine_.Press(code);
    return !alive.expired();
}

void CalculatorCore::KeyPress(std::int32_t& character) {
    character = ActionOfCharacter(character, settings_.NumSeparators);
    if (character == action::None) {
        machine_.Refuse();
        return;
    }
    const std::int32_t key = CalculatorKeyOf(character);
    if (Press(character) && character > 0) pressedKey_ = key;
}

void CalculatorCore::KeyDown(std::int32_t& keyCode) {
    if (keyCode < padkey::F5 || keyCode > padkey::F8) return;
    std::int32_t code = action::FirstFormula + std::exchange(keyCode, 0) - padkey::F5;
    Press(code);
}

void CalculatorCore::ChangeSign() {
    std::int32_t code = action::ChangeSign;
    Press(code);
}

void CalculatorCore::MouseDown(Point point) {
    const std::int32_t key = layout_.KeyAt(point);
    if (key == 0) return;
    std::int32_t code = CalculatorKeyAt(key).Action;
    if (Press(code)) pressedKey_ = key;
}

void CalculatorCore::MouseMove(Point point, bool buttonDown) {
    if (buttonDown && layout_.KeyAt(point) != pressedKey_) pressedKey_ = 0;
}

void CalculatorCore::MouseUp() {
    pressedKey_ = 0;
    machine_.ValueChange.Raise();
}

std::string CalculatorCore::TooltipAt(Point point) const {
    return layout_.KeysArea.Contains(point) ? formulas_.TooltipText(layout_.FormulaAt(point)) : std::string();
}

} // namespace quillgrid
