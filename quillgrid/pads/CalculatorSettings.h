#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/pads/CalculatorNumber.h"
#include "quillgrid/platform/PropertyBag.h"

#include <string>

namespace quillgrid {

/// The persisted properties of the calculator, with their defaults.
struct CalculatorSettings {
    bool DoublePrecision = false;      ///< otherwise numbers are money with four decimals
    std::string NumSeparators = ",.;"; ///< each character, in any case, types the decimal point
    Variant Min = Variant::Null();     ///< a value below shows in another colour; Null: no bound
    Variant Max = Variant::Null();     ///< a value above shows in another colour; Null: no bound

    CalculatorNumber::Precision NumberPrecision() const {
        return DoublePrecision ? CalculatorNumber::Precision::Double : CalculatorNumber::Precision::Currency;
    }
    friend bool operator==(const CalculatorSettings&, const CalculatorSettings&) = default;
};

QUILLGRID_EXPORT CalculatorSettings ReadCalculatorSettings(const PropertyBag& bag, const Locale& locale);
QUILLGRID_EXPORT void WriteCalculatorSettings(const CalculatorSettings& settings, PropertyBag& bag);

} // namespace quillgrid
