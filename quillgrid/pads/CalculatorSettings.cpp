#include "quillgrid/pads/CalculatorSettings.h"

#include "quillgrid/pads/PadProperty.h"

namespace quillgrid {

namespace {

using S = CalculatorSettings;

constexpr PadProperty<S> Table[] = {
    PadPropertyOf<S, &S::DoublePrecision>("DoublePrecision"),
    PadPropertyOf<S, &S::NumSeparators>("NumSeparators"),
    PadPropertyOf<S, &S::Min>("Min"),
    PadPropertyOf<S, &S::Max>("Max"),
};

} // namespace

CalculatorSettings ReadCalculatorSettings(const PropertyBag& bag, const Locale& locale) {
    CalculatorSettings settings;
    ReadPadProperties(Table, bag, locale, settings);
    return settings;
}

void WriteCalculatorSettings(const CalculatorSettings& settings, PropertyBag& bag) {
    WritePadProperties(Table, bag, settings, CalculatorSettings{});
}

} // namespace quillgrid
