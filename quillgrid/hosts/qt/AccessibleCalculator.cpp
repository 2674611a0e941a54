#include "quillgrid/hosts/qt/AccessibleCalculator.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <algorithm>
#include <array>

namespace quillgrid::qt {

namespace {

/// What is said of a key whose face cannot be read out, and what types it.
struct SpokenKey {
    std::int32_t Action;
    const char* English;
    const char* German;
    const char* Typed;
};

constexpr std::array<SpokenKey, 9> SpokenKeys{{
    {'/', "divided by", "geteilt durch", "/"},
    {'*', "times", "mal", "*"},
    {'-', "minus", "minus", "-"},
    {'+', "plus", "plus", "+"},
    {action::Equals, "equals", "gleich", "="},
    {action::Comma, "decimal point", "Komma", "."},
    {action::ChangeSign, "change sign", "Vorzeichen", "F9"},
    {action::BackSpace, "delete last digit", "letzte Ziffer löschen", "Backspace"},
    {action::Clear, "clear", "löschen", "Escape"},
}};

/// Number 20 of the keys is kept free.
constexpr int FreeKey = 20;

int KeyOfPart(int number) {
    const int key = number - AccessibleCalculator::Display;
    return key < FreeKey ? key : key + 1;
}

int PartOfKey(std::int32_t key) {
    return AccessibleCalculator::Display + (key < FreeKey ? key : key - 1);
}

const SpokenKey* SpokenOf(std::int32_t action) {
    const auto* found = std::find_if(SpokenKeys.begin(), SpokenKeys.end(),
                                     [action](const SpokenKey& key) { return key.Action == action; });
    return found == SpokenKeys.end() ? nullptr : found;
}

} // namespace

QString AccessibleCalculator::Name() const {
    return Said("Calculator", "Taschenrechner");
}

QString AccessibleCalculator::Value() const {
    return Calculator() ? ToQString(Calculator()->Pad().DisplayText()) : QString();
}

int AccessibleCalculator::CountIn(int container) const {
    return container == Whole && Calculator() ? PartOfKey(CalculatorKeyCount) : 0;
}

int AccessibleCalculator::NumberAt(Point point) const {
    if (!Calculator()) return 0;
    const CalculatorLayout& layout = Calculator()->Pad().Layout();
    if (layout.Well.Contains(point)) return Display;
    const std::int32_t key = layout.KeyAt(point);
    return key == 0 ? 0 : PartOfKey(key);
}

QString AccessibleCalculator::NameOf(std::int32_t key) const {
    const CalculatorKey& face = CalculatorKeyAt(key);
    if (const SpokenKey* spoken = SpokenOf(face.Action)) return Said(spoken->English, spoken->German);
    const auto formula = IsFormulaAction(face.Action)
                             ? Calculator()->Pad().Formulas().Find(key - FirstFormulaKey + 1)
                             : nullptr;
    const QString tooltip = formula ? ToQString(formula->TooltipText()) : QString();
    return tooltip.isEmpty() ? ToQString(face.Face) : tooltip;
}

PadPart AccessibleCalculator::Part(int number) const {
    const CalcPadWidget* calculator = Calculator();
    if (!calculator || number < Display || number > CountIn(Whole)) return {};
    const CalculatorLayout& layout = Calculator()->Pad().Layout();
    if (number == Display) {
        PadPart display{.Role = QAccessible::StaticText, .Name = Value(), .Area = layout.Well};
        display.State.readOnly = display.TakesFocus = true;
        return display;
    }
    const int key = KeyOfPart(number);
    const SpokenKey* spoken = SpokenOf(CalculatorKeyAt(key).Action);
    return {.Role = QAccessible::Button,
            .Name = NameOf(key),
            .Key = spoken ? QString::fromLatin1(spoken->Typed) : ToQString(CalculatorKeyAt(key).Face),
            .Area = layout.Keys[static_cast<std::size_t>(key)],
            .Presses = true};
}

} // namespace quillgrid::qt
