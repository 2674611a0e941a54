#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/pads/CalculatorNumber.h"

#include <string>

namespace quillgrid {

/// What has been typed into the calculator.
struct QUILLGRID_EXPORT CalculatorEntries {
    std::string First;
    std::string Second;
    char Operator = 0; ///< + - * / waiting for its second operand; 0 for none
    CalculatorNumber Value;

    bool IsPending() const { return Operator != 0; }
    /// The operand being typed.
    std::string& Edited() { return IsPending() ? Second : First; }
    const std::string& Edited() const { return IsPending() ? Second : First; }
    /// The value is kept.
    void Clear() {
        First.clear();
        Second.clear();
        Operator = 0;
    }
};

/// What the calculator shows.
struct CalculatorDisplay {
    std::string Number = "0";
    std::string Operator; ///< empty for none

    friend bool operator==(const CalculatorDisplay&, const CalculatorDisplay&) = default;
};

} // namespace quillgrid
