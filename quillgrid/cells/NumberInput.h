// Assigned and typed values as numbers. Texts are read with the separators of the control, whatever the
// locale; number variants keep their exact meaning. Nothing for values beyond the type's range and for no
// numbers.
#pragma once

#include "quillgrid/base/Currency.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/InputConversion.h"

#include <cstdint>
#include <optional>

namespace quillgrid {

/// Every separator in a text is passed over: "1.000" is a thousand, "2.5" is 25. Number variants are rounded
/// half to even.
std::optional<std::int32_t> LongFromInput(const Variant& value, const InputContext& context);
std::optional<Currency> CurrencyFromInput(const Variant& value, const InputContext& context);
/// Always finite, never a negative zero.
std::optional<double> DoubleFromInput(const Variant& value, const InputContext& context);

} // namespace quillgrid
