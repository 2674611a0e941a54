// Types each line of the standard input on a calculator and prints what it shows after it: the helper of
// check_against_bc. "c" at the start of a line makes it a calculation of its own.
#include "quillgrid/pads/CalculatorCore.h"

#include <iostream>
#include <string>

int main() {
    quillgrid::CalculatorCore calculator(quillgrid::BuiltInLocale("en-US"));
    bool refused = false;
    calculator.Machine().Beep.Listen([&] { refused = true; });
    for (std::string keys; std::getline(std::cin, keys);) {
        calculator.SetValue(0);
        refused = false;
        for (const char key : keys) {
            std::int32_t code = key == '~' ? quillgrid::action::ChangeSign : key;
            calculator.Machine().Press(code);
        }
        std::cout << (refused ? "refused" : calculator.Display().Number) << '\n';
    }
}
