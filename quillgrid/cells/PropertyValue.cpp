#include "quillgrid/cells/PropertyValue.h"

#include "quillgrid/locale/Coercion.h"

#include <cmath>

namespace quillgrid {

std::optional<bool> FlagFrom(const Variant& value, const Locale& locale) {
    return value.IsEmpty() ? false : ToBoolean(value, locale);
}

std::optional<std::int32_t> NumberFrom(const Variant& value, const Locale& locale) {
    return value.IsEmpty() ? 0 : ToLong(value, locale);
}

std::optional<Colour> ColourFrom(const Variant& value, const Locale& locale) {
    if (const auto number = NumberFrom(value, locale)) return static_cast<Colour>(*number);
    const auto number = ToDouble(value, locale);
    const bool fits = number && *number >= 0 && *number <= 4294967295.0;
    return fits ? std::optional(static_cast<Colour>(std::nearbyint(*number))) : std::nullopt;
}

std::optional<Currency> AmountFrom(const Variant& value, const Locale& locale) {
    return value.IsEmpty() ? Currency() : ToCurrency(value, locale);
}

std::optional<std::string> TextFrom(const Variant& value, const Locale& locale) {
    if (value.IsNull() || value.Get<ObjectReference>()) return std::nullopt;
    return ToText(value, locale);
}

std::optional<Font> FontFrom(const Variant& value) {
    const auto* object = value.Get<ObjectReference>();
    const Font* font = object && *object ? std::any_cast<Font>(object->get()) : nullptr;
    return font ? std::optional(*font) : std::nullopt;
}

} // namespace quillgrid
