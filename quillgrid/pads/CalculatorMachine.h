#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/pads/CalculatorEntries.h"
#include "quillgrid/pads/CalculatorKeys.h"
#include "quillgrid/pads/CalculatorSettings.h"
#include "quillgrid/pads/FormulaSlots.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace quillgrid {

/// A desk calculator without a face: keys in, a display and events out. Computes from left to right without
/// precedence. A key that is refused or fails (a division by zero, a number out of range) leaves everything
/// as it was.
class QUILLGRID_EXPORT CalculatorMachine {
public:
    static constexpr std::size_t LongestEntry = 15;

    /// A number was computed; `Value` is that number until the handlers return.
    quillgrid::Event<> ValueChange;
    /// The user is done.
    quillgrid::Event<> CloseUp;
    /// A key was refused.
    quillgrid::Event<> Beep;

    /// Both are looked at at each key and outlive the machine.
    CalculatorMachine(const CalculatorSettings& settings, const FormulaSlots& formulas)
        : settings_(settings), formulas_(formulas) {}
    CalculatorMachine(const CalculatorMachine&) = delete;
    CalculatorMachine& operator=(const CalculatorMachine&) = delete;

    /// Presses a key; `code` becomes 0 when the key is refused or ends the calculation. A key that a handler
    /// of an event presses meanwhile is dropped. Handlers may destroy the machine.
    void Press(std::int32_t& code);
    /// A character that is on no key: beeps.
    void Refuse();

    const CalculatorNumber& Value() const { return entries_.Value; }
    /// Starts anew from a number.
    void SetValue(const CalculatorNumber& value);
    /// Reads the entries in the precision that the settings now name; what does not fit into it becomes 0.
    void ChangePrecision();

    const CalculatorDisplay& Display() const { return display_; }
    const CalculatorEntries& Entries() const { return entries_; }

private:
    enum class Outcome { Done, Refused, Closing, Gone };
    class Running;

    Outcome Run(std::int32_t code);
    Outcome Perform(std::int32_t code);
    Outcome Digit(char digit);
    Outcome Point();
    Outcome Operator(char operation);
    Outcome BackSpace();
    Outcome Clear();
    Outcome Equals();
    Outcome ChangeSign();
    Outcome RunFormula(std::int32_t slot);
    Outcome TypeFormula(std::string_view keyText, std::string_view value);
    Outcome TypeInFormula(char32_t character);
    Outcome TypeText(std::string_view characters);

    void StartAfterResult();
    /// Applies the pending operator; the result becomes the first operand.
    Outcome Calculate();
    Outcome Close();
    Outcome Reject();
    bool Redraw();
    /// Raises an event; false when a handler has destroyed the machine.
    bool Raise(const quillgrid::Event<>& event);

    const CalculatorSettings& settings_;
    const FormulaSlots& formulas_;
    CalculatorEntries entries_;
    CalculatorDisplay display_;
    std::int32_t lastAction_ = action::None;
    bool displayEnabled_ = true;
    bool running_ = false;
    std::shared_ptr<const bool> alive_ = std::make_shared<const bool>(true);
};

} // namespace quillgrid
