#pragma once

#include "quillgrid/base/Currency.h"
#include "quillgrid/euro/EuroTable.h"

#include <optional>

namespace quillgrid {

/// Converts as the law of the euro asks: by the rate itself, never by its inverse; between two other
/// currencies by way of the euro, rounded to three decimals there; the result rounded to the smallest amount
/// that is paid, halves away from zero. Nothing when a result is out of range.
std::optional<Currency> ConvertByEuro(Currency amount, const EuroCurrency& from, const EuroCurrency& to);

} // namespace quillgrid
