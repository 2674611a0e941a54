// Properties that are reached by name pass as variants: these turn one into the declared type of a property
// and back. Values of other types are converted where they have a meaning in it: texts as the user's locale
// writes them, empty as the type's nothing. Null and what makes no sense convert to nothing.
#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Currency.h"
#include "quillgrid/base/Variant.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/platform/Font.h"

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>

namespace quillgrid {

/// One conversion for each type that a property may have.
std::optional<bool> FlagFrom(const Variant& value, const Locale& locale);
std::optional<std::int32_t> NumberFrom(const Variant& value, const Locale& locale);
/// 32 bits, whether a number writes them with a sign or without.
std::optional<Colour> ColourFrom(const Variant& value, const Locale& locale);
std::optional<Currency> AmountFrom(const Variant& value, const Locale& locale);
std::optional<std::string> TextFrom(const Variant& value, const Locale& locale);
/// Only an object holding a font is one.
std::optional<Font> FontFrom(const Variant& value);

/// The value in the type of a property; a property of type Variant takes it as it is.
template <typename T>
std::optional<T> PropertyValueFrom(const Variant& value, const Locale& locale) {
    if constexpr (std::same_as<T, Variant>) {
        return value;
    } else if constexpr (std::same_as<T, bool>) {
        return FlagFrom(value, locale);
    } else if constexpr (std::same_as<T, Colour>) {
        return ColourFrom(value, locale);
    } else if constexpr (std::same_as<T, Currency>) {
        return AmountFrom(value, locale);
    } else if constexpr (std::same_as<T, std::string>) {
        return TextFrom(value, locale);
    } else if constexpr (std::same_as<T, Font>) {
        return FontFrom(value);
    } else {
        const auto number = NumberFrom(value, locale);
        return number ? std::optional(static_cast<T>(*number)) : std::nullopt;
    }
}

/// Enumerations and colours become 32-bit integers, fonts objects.
template <typename T>
Variant ToPropertyValue(const T& value) {
    if constexpr (std::is_enum_v<T> || std::same_as<T, Colour>) {
        return Variant(static_cast<std::int32_t>(value));
    } else if constexpr (std::same_as<T, Font>) {
        return Variant(std::make_shared<std::any>(value));
    } else {
        return Variant(value);
    }
}

} // namespace quillgrid
