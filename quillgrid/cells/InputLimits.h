#pragma once

#include "quillgrid/base/Currency.h"
#include "quillgrid/base/DateTime.h"
#include "quillgrid/cells/InputConversion.h"

#include <cstdint>
#include <optional>

namespace quillgrid {

// A value below `Min` becomes `Min` and is not looked at again; one above `Max` becomes `Max`. Bounds that
// are missing, or have no meaning in the value's type, limit nothing.

std::int32_t LimitLong(std::int32_t number, const InputRules& rules, const Locale& locale);
Currency LimitCurrency(Currency amount, const InputRules& rules, const Locale& locale);
double LimitDouble(double number, const InputRules& rules, const Locale& locale);
/// In whole days.
std::int32_t LimitDay(std::int32_t day, const InputRules& rules, const Locale& locale);
/// In whole seconds; nothing when the time is before `Min`: an appointment is not moved, but it may end
/// early.
std::optional<std::int32_t> LimitSecond(std::int32_t second, const InputRules& rules, const Locale& locale);

} // namespace quillgrid
