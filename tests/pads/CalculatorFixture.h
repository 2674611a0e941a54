#pragma once

#include "quillgrid/pads/CalculatorCore.h"

#include <string>
#include <string_view>

namespace quillgrid::test {

/// A calculator that is typed on and writes down what it says.
class TypedCalculator {
public:
    CalculatorCore Core{BuiltInLocale("en-US")};
    std::string Said; ///< one letter an event: value change, close, beep; taken by Type

    TypedCalculator() {
        Core.Machine().ValueChange.Listen([this] { Said += 'v'; });
        Core.Machine().CloseUp.Listen([this] { Said += 'C'; });
        Core.Machine().Beep.Listen([this] { Said += 'b'; });
    }

    /// Presses keys: their characters, '<' back space, '~' sign, 'A' to 'D' the formulas. Gives the display:
    /// the number, the pending operator, and behind a blank the events.
    std::string Type(std::string_view keys) {
        Said.clear();
        for (const char key : keys)
            Press(key);
        const auto& display = Core.Display();
        return display.Number + display.Operator + (Said.empty() ? "" : " " + Said);
    }
    void Press(char key) {
        std::int32_t code = key;
        if (key == '<') code = action::BackSpace;
        if (key == '~') code = action::ChangeSign;
        if (key >= 'A' && key <= 'D') code = action::FirstFormula + key - 'A';
        Core.Machine().Press(code);
    }
    /// Runs a formula on a value.
    std::string Formula(std::string_view text, const Variant& value) {
        Core.DefineFormula(1, std::string(text), Variant::Null(), "");
        Core.SetValue(value);
        return Type("A");
    }
};

inline Currency Money(const char* text) {
    return *Currency::FromDecimal(text);
}

} // namespace quillgrid::test
