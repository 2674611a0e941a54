// Any formulas and any keys, clicks and values between them: no crash, and after each of them a display that
// says the value, entries that are numbers, and a calculator that still computes.
#include "fuzz/FuzzInput.h"

#include "quillgrid/pads/CalculatorCore.h"
#include "quillgrid/pads/PadKeyCodes.h"

#include <string>

namespace quillgrid {
namespace {

/// "[-]digits[.digits]" with either run empty, as entries are while they are typed.
bool IsEntry(std::string_view text) {
    if (!text.empty() && text.front() == '-') text.remove_prefix(1);
    const auto rest = text.find_first_not_of("0123456789");
    if (rest == std::string_view::npos) return true;
    return text[rest] == '.' && text.find_first_not_of("0123456789", rest + 1) == std::string_view::npos;
}

void Check(const CalculatorCore& calculator, const CalculatorMachine& machine) {
    const auto& entries = machine.Entries();
    const auto& display = machine.Display();
    Require(IsEntry(entries.First) && IsEntry(entries.Second), "entries are numbers");
    Require(entries.IsPending() || entries.Second.empty(), "no second operand without an operator");
    Require(display.Operator.empty() == !entries.IsPending(), "the operator is shown");
    const auto shown = CalculatorNumber::Read(display.Number, calculator.Settings().NumberPrecision());
    Require(shown && *shown == machine.Value(), "the value is what is shown");
}

void Step(CalculatorCore& calculator, FuzzInput& input) {
    const std::uint8_t kind = input.Byte();
    std::int32_t code = input.Byte();
    switch (kind % 8) {
    case 0: code = padkey::F5 + code % 4; return calculator.KeyDown(code);
    case 1: code = action::ChangeSign + code % 8; return calculator.Machine().Press(code);
    case 2: code = input.Number<std::int32_t>(); return calculator.Machine().Press(code);
    case 3: return calculator.SetValue(AnyValue(input));
    case 4: return calculator.DefineFormula(code % 6, std::string(input.Take(input.Byte() % 64)), code, "");
    case 5: return calculator.MouseDown({code, input.Byte()});
    case 6:
        if (code % 16 == 0) calculator.SetDoublePrecision(code % 32 == 0);
        [[fallthrough]];
    default: code = "0123456789.+-*/=c\b"[code % 18]; return calculator.KeyPress(code);
    }
}

void Run(FuzzInput& input) {
    CalculatorCore calculator(BuiltInLocale("en-US"));
    CalculatorMachine& machine = calculator.Machine();
    int raised = 0;
    machine.CloseUp.Listen([&] { Check(calculator, machine); });
    machine.ValueChange.Listen([&] { ++raised; });
    while (!input.Rest().empty()) {
        Step(calculator, input);
        Check(calculator, machine);
    }
    for (const char key : std::string_view("c2*3=")) {
        std::int32_t code = key;
        machine.Press(code);
    }
    Require(machine.Display().Number == "6" && raised > 0, "still computes");
}

} // namespace
} // namespace quillgrid

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    quillgrid::FuzzInput input(data, size);
    quillgrid::Run(input);
    return 0;
}
