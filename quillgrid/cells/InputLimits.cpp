#include "quillgrid/cells/InputLimits.h"

#include "quillgrid/locale/Coercion.h"

#include <cmath>

namespace quillgrid {

namespace {

template <typename T>
using Reader = std::optional<T> (*)(const Variant&, const Locale&);

template <typename T>
std::optional<T> Bound(const Variant* bound, Reader<T> read, const Locale& locale) {
    if (!bound || bound->IsNull() || bound->IsEmpty()) return std::nullopt;
    return read(*bound, locale);
}

template <typename T>
T Limit(T value, const InputRules& rules, Reader<T> read, const Locale& locale) {
    if (const auto least = Bound(rules.Min, read, locale); least && value < *least) return *least;
    if (const auto most = Bound(rules.Max, read, locale); most && value > *most) return *most;
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
    if (const auto earliest = Bound<DateTime>(rules.Min, ValidDateTime, locale);
        earliest && time < *earliest) {
        return std::nullopt;
    }
    if (const auto latest = Bound<DateTime>(rules.Max, ValidDateTime, locale); latest && time > *latest) {
        return latest->Second;
    }
    return second;
}

} // namespace quillgrid
