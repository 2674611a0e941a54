#include "quillgrid/cells/InputLimits.h"

#include "quillgrid/locale/Coercion.h"

#include <cmath>

namespace quillgrid {

namespace {

template <typename T>
using Reader = std::optional<T> (*)(const Variant&, const Locale&);

bool IsSet(const Variant* bound) {
    return bound && !bound->IsNull() && !bound->IsEmpty();
}

template <typename T>
T Limit(T value, const InputRules& rules, Reader<T> read, const Locale& locale) {
    if (IsSet(rules.Min)) {
        if (const auto least = read(*rules.Min, locale); least && value < *least) return *least;
    }
    if (IsSet(rules.Max)) {
        if (const auto most = read(*rules.Max, locale); most && value > *most) return *most;
    }
    return value;
}

std::optional<double> FiniteDouble(const Variant& value, const Locale& locale) {
    const auto number = ToDouble(value, locale);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<DateTime> ValidDateTime(const Variant& value, const Locale& locale) {
    const auto date = ToDateTime(value, locale);
    const bool valid = date && IsValidDay(date->Day) && date->Second >= 0 && date->Second < SecondsPerDay;
    return valid ? date : std::nullopt;
}

std::optional<std::int32_t> ValidDay(const Variant& value, const Locale& locale) {
    const auto date = ValidDateTime(value, locale);
    return date ? std::optional(date->Day) : std::nullopt;
}

} // namespace

std::int32_t LimitLong(std::int32_t number, const InputRules& rules, const Locale& locale) {
    return Limit<std::int32_t>(number, rules, ToLong, locale);
}

Currency LimitCurrency(Currency amount, const InputRules& rules, const Locale& locale) {
    return Limit<Currency>(amount, rules, ToCurrency, locale);
}

double LimitDouble(double number, const InputRules& rules, const Locale& locale) {
    return Limit<double>(number, rules, FiniteDouble, locale);
}

std::int32_t LimitDay(std::int32_t day, const InputRules& rules, const Locale& locale) {
    return Limit<std::int32_t>(day, rules, ValidDay, locale);
}

std::optional<std::int32_t> LimitSecond(std::int32_t second, const InputRules& rules, const Locale& locale) {
    const DateTime time{0, second};
    if (IsSet(rules.Min)) {
        if (const auto earliest = ValidDateTime(*rules.Min, locale); earliest && time < *earliest) return {};
    }
    if (IsSet(rules.Max)) {
        if (const auto latest = ValidDateTime(*rules.Max, locale); latest && time > *latest)
            return latest->Second;
    }
    return second;
}

} // namespace quillgrid
