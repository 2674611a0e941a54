#include "quillgrid/euro/EuroConversion.h"

#include <array>
#include <cstdlib>
#include <limits>
#include <numeric>

namespace quillgrid {

namespace {

constexpr std::array<std::int64_t, 5> PowersOfTen{1, 10, 100, 1'000, 10'000};
constexpr std::int64_t Thousandths = 1'000; // of a euro, in which amounts pass from one currency to another
constexpr std::int64_t FineScale = Currency::Scale;

/// value x factor / divisor, halves away from zero. The rates have six digits: without what factor and
/// divisor have in common their product is below 2^62.
std::optional<std::int64_t> MultiplyAndDivide(std::int64_t value, std::int64_t factor, std::int64_t divisor) {
    const std::int64_t common = std::gcd(factor, divisor);
    factor /= common;
    divisor /= common;
    if (value < 0) {
        if (value == std::numeric_limits<std::int64_t>::min()) return std::nullopt;
        const auto positive = MultiplyAndDivide(-value, factor, divisor);
        return positive ? std::optional(-*positive) : std::nullopt;
    }
    const std::int64_t whole = value / divisor;
    const std::int64_t part = value % divisor * factor;
    const std::int64_t last = part / divisor + (part % divisor >= divisor - part % divisor ? 1 : 0);
    if (whole > (std::numeric_limits<std::int64_t>::max() - last) / factor) return std::nullopt;
    return whole * factor + last;
}

/// From units of 1/`from` to units of 1/`to`; the greater is a multiple of the smaller.
std::optional<std::int64_t> Rescale(std::int64_t value, std::int64_t from, std::int64_t to) {
    return from >= to ? MultiplyAndDivide(value, 1, from / to) : MultiplyAndDivide(value, to / from, 1);
}

/// Ten thousandths of an amount as thousandths of a euro.
std::optional<std::int64_t> ToEuro(std::int64_t scaled, const EuroCurrency& from) {
    return MultiplyAndDivide(scaled, EuroCurrency::RateScale / (FineScale / Thousandths), from.Rate);
}

/// Euro in 1/`scale` to the smallest amounts of another currency.
std::optional<std::int64_t> FromEuro(std::int64_t euro, std::int64_t scale, const EuroCurrency& to) {
    const std::int64_t smallest = PowersOfTen[static_cast<std::size_t>(to.Decimals)];
    return MultiplyAndDivide(euro, to.Rate, EuroCurrency::RateScale / smallest * scale);
}

bool IsEuro(const EuroCurrency& currency) {
    return currency.Rate == EuroCurrency::RateScale;
}

std::optional<std::int64_t> InSmallestAmounts(std::int64_t scaled, const EuroCurrency& from,
                                              const EuroCurrency& to) {
    if (IsEuro(from)) return FromEuro(scaled, FineScale, to);
    if (IsEuro(to)) {
        const std::int64_t smallest = PowersOfTen[static_cast<std::size_t>(to.Decimals)];
        return MultiplyAndDivide(scaled, EuroCurrency::RateScale / (FineScale / smallest), from.Rate);
    }
    const auto euro = ToEuro(scaled, from);
    return euro ? FromEuro(*euro, Thousandths, to) : std::nullopt;
}

} // namespace

std::optional<Currency> ConvertByEuro(Currency amount, const EuroCurrency& from, const EuroCurrency& to) {
    if (from.Code == to.Code) return amount;
    const auto result = InSmallestAmounts(amount.Scaled(), from, to);
    if (!result) return std::nullopt;
    const auto scaled = Rescale(*result, PowersOfTen[static_cast<std::size_t>(to.Decimals)], FineScale);
    return scaled ? std::optional(Currency::FromScaled(*scaled)) : std::nullopt;
}

} // namespace quillgrid
