#include "quillgrid/pads/CalculatorMachine.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/pads/CalculatorText.h"

#include <utility>

namespace quillgrid {

namespace {

// What a formula may type besides X; other keys are refused in it.
constexpr std::string_view FormulaCharacters = "0123456789.,+-*/=";

} // namespace

/// Marks the machine as busy while a key is worked on, also past a handler that throws.
class CalculatorMachine::Running {
public:
    explicit Running(CalculatorMachine& machine) : machine_(machine), alive_(machine.alive_) {
        machine.running_ = true;
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;
    ~Running() {
        if (alive_.expired()) return;
        machine_.running_ = false;
        machine_.displayEnabled_ = true;
    }

private:
    CalculatorMachine& machine_;
    std::weak_ptr<const bool> alive_;
};

void CalculatorMachine::Press(std::int32_t& code) {
    const std::int32_t pressed = std::exchange(code, action::None);
    if (running_) return;
    const Running running(*this);
    if (Run(pressed) == Outcome::Done) code = pressed;
}

void CalculatorMachine::Refuse() {
    if (running_) return;
    const Running running(*this);
    Reject();
}

void CalculatorMachine::SetValue(const CalculatorNumber& value) {
    entries_.Clear();
    entries_.First = value.ToText();
    entries_.Value = value;
    lastAction_ = action::None;
    Redraw();
}

void CalculatorMachine::ChangePrecision() {
    if (!Redraw()) SetValue(*CalculatorNumber::Read("0", settings_.NumberPrecision()));
}

CalculatorMachine::Outcome CalculatorMachine::Run(std::int32_t code) {
    CalculatorEntries before = entries_;
    const Outcome outcome = Perform(code);
    if (outcome == Outcome::Gone) return outcome;
    if (outcome == Outcome::Closing) displayEnabled_ = true;
    if (outcome == Outcome::Refused || !Redraw()) {
        entries_ = std::move(before);
        return Reject();
    }
    if (outcome == Outcome::Closing) return Close();
    // After a formula has run a number stands there as after "=".
    lastAction_ = IsFormulaAction(code) ? action::Equals : code;
    return outcome;
}

CalculatorMachine::Outcome CalculatorMachine::Perform(std::int32_t code) {
    switch (code) {
    case action::Comma:
    case action::Point: return Point();
    case '+':
    case '-':
    case '*':
    case '/': return Operator(static_cast<char>(code));
    case action::BackSpace: return BackSpace();
    case action::Clear: return Clear();
    case action::Equals: return Equals();
    case action::ChangeSign: return ChangeSign();
    default: break;
    }
    if (code >= '0' && code <= '9') return Digit(static_cast<char>(code));
    if (IsFormulaAction(code)) return RunFormula(code - action::FirstFormula + 1);
    return Outcome::Refused;
}

void CalculatorMachine::StartAfterResult() {
    if (lastAction_ == action::Equals && !entries_.IsPending()) entries_.First.clear();
}

CalculatorMachine::Outcome CalculatorMachine::Digit(char digit) {
    StartAfterResult();
    std::string& entry = entries_.Edited();
    if (entry.size() >= LongestEntry) return Outcome::Refused;
    entry.push_back(digit);
    return Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::Point() {
    StartAfterResult();
    std::string& entry = entries_.Edited();
    if (entry.size() >= LongestEntry || entry.find('.') != std::string::npos) return Outcome::Refused;
    entry.push_back('.');
    return Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::Operator(char operation) {
    if (!entries_.IsPending() && entries_.First.empty()) entries_.First.assign(1, '0');
    if (entries_.IsPending() && !entries_.Second.empty()) {
        const Outcome outcome = Calculate();
        if (outcome != Outcome::Done) return outcome;
    }
    entries_.Operator = operation;
    return Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::BackSpace() {
    std::string& entry = entries_.Edited();
    if (!entry.empty()) entry.pop_back();
    return Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::Clear() {
    entries_.Clear();
    return lastAction_ == action::Clear ? Outcome::Closing : Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::Equals() {
    if (lastAction_ == action::Equals) { // a formula has failed half way: its operand goes with its operator
        entries_.Operator = 0;
        entries_.Second.clear();
    }
    return entries_.IsPending() ? Calculate() : Outcome::Closing;
}

CalculatorMachine::Outcome CalculatorMachine::ChangeSign() {
    std::string& entry = entries_.Edited();
    const std::string plain = PlainForm(entry);
    if (plain == "0") {
        entry = plain;
    } else {
        entry = plain.front() == '-' ? plain.substr(1) : "-" + plain;
    }
    return Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::Calculate() {
    const auto precision = settings_.NumberPrecision();
    const auto left = CalculatorNumber::Read(entries_.First, precision);
    const auto right = CalculatorNumber::Read(entries_.Second, precision);
    if (!left || !right) return Outcome::Refused;
    const auto result = CalculatorNumber::Calculate(entries_.Operator, *left, *right);
    if (!result) return Outcome::Refused;
    entries_.Clear();
    entries_.Value = *result;
    if (!Raise(ValueChange)) return Outcome::Gone;
    entries_.Clear(); // a handler may have set another value
    entries_.First = result->ToText();
    return Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::RunFormula(std::int32_t slot) {
    displayEnabled_ = false;
    if (entries_.IsPending() && Run(action::Equals) == Outcome::Gone) return Outcome::Gone;
    entries_.Clear();
    const std::string keyText = formulas_.KeyText(slot); // a handler may define another one meanwhile
    if (TypeFormula(keyText, entries_.Value.ToText()) == Outcome::Gone) return Outcome::Gone;
    displayEnabled_ = true;
    return Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::TypeFormula(std::string_view keyText, std::string_view value) {
    while (!keyText.empty()) {
        const DecodedCharacter next = DecodeFirst(keyText);
        keyText.remove_prefix(next.Bytes);
        const bool isValue = next.Character == 'X' || next.Character == 'x';
        const Outcome outcome = isValue ? TypeText(value) : TypeInFormula(next.Character);
        if (outcome == Outcome::Gone) return outcome;
    }
    return Run(action::Equals);
}

CalculatorMachine::Outcome CalculatorMachine::TypeText(std::string_view characters) {
    for (const char c : characters) {
        if (Run(c) == Outcome::Gone) return Outcome::Gone;
    }
    return Outcome::Done;
}

CalculatorMachine::Outcome CalculatorMachine::TypeInFormula(char32_t character) {
    const bool known =
        character < 0x80 && FormulaCharacters.find(static_cast<char>(character)) != std::string_view::npos;
    return known ? Run(static_cast<std::int32_t>(character)) : Reject();
}

CalculatorMachine::Outcome CalculatorMachine::Close() {
    lastAction_ = action::None;
    return Raise(CloseUp) ? Outcome::Closing : Outcome::Gone;
}

CalculatorMachine::Outcome CalculatorMachine::Reject() {
    lastAction_ = action::None;
    return Raise(Beep) ? Outcome::Refused : Outcome::Gone;
}

bool CalculatorMachine::Redraw() {
    if (!displayEnabled_) return true;
    const std::string& entry = entries_.Edited();
    const auto value = CalculatorNumber::Read(entry, settings_.NumberPrecision());
    if (!value) return false;
    entries_.Value = *value;
    display_.Number = !entry.empty() && entry.back() == '.' ? entry : PlainForm(entry);
    display_.Operator.assign(entries_.IsPending() ? 1 : 0, entries_.Operator);
    return true;
}

bool CalculatorMachine::Raise(const quillgrid::Event<>& event) {
    const std::weak_ptr<const bool> alive = alive_;
    event.Raise();
    return !alive.expired();
}

} // namespace quillgrid
