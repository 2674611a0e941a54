// The euro and the currencies that it replaced for good.
#pragma once

#include "quillgrid/base/Export.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillgrid {

inline constexpr std::size_t EuroLanguages = 5;

/// One text in English, French, Italian, Spanish and German, in the order of their numbers.
using EuroTexts = std::array<std::string_view, EuroLanguages>;

struct EuroCurrency {
    /// Rates have six significant figures; they are kept as whole millionths.
    static constexpr std::int64_t RateScale = 1'000'000;

    std::string_view Code;   ///< ISO 4217
    std::int64_t Rate;       ///< units to one euro, in millionths
    std::int32_t Decimals;   ///< of the smallest amount that is paid
    std::string_view Symbol; ///< as it stands beside amounts
    EuroTexts Country;
    EuroTexts Name;
};

/// The euro first, then by code.
QUILLGRID_EXPORT std::span<const EuroCurrency> EuroTable();
/// In any case; null for an unknown code.
QUILLGRID_EXPORT const EuroCurrency* FindEuroCurrency(std::string_view code);

} // namespace quillgrid
