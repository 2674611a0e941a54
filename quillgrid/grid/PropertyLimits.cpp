#include "quillgrid/grid/PropertyLimits.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/LanguageTexts.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace quillgrid {

namespace {

std::int32_t NumberIn(const Variant& value) {
    const auto* number = value.Get<std::int32_t>();
    return number ? *number : 0;
}

std::string TextIn(const Variant& value) {
    const auto* text = value.Get<std::string>();
    return text ? RepairUtf8(*text) : std::string();
}

std::int32_t PixelsOf(std::int32_t containerUnits, const Site& site) {
    const double pixels = std::nearbyint(site.ToPixels(containerUnits));
    constexpr double most = std::numeric_limits<std::int32_t>::max();
    return pixels > 0 ? static_cast<std::int32_t>(std::min(pixels, most)) : 0; // what is no number is 0
}

std::string FirstCharacter(const std::string& text) {
    const std::string_view first = FirstCharacters(text, 1);
    return first.empty() ? "*" : std::string(first);
}

std::string Completed(std::string text, std::u32string_view needed) {
    for (const char32_t character : needed) {
        if (ContainsIgnoreCase(text, character)) continue;
        std::string front;
        AppendUtf8(front, character);
        text.insert(0, front);
    }
    return text;
}

} // namespace

Variant Limited(const PropertyLimit& limit, Variant given, const Site& site) {
    switch (limit.Type) {
    case PropertyLimit::Kind::None: return given;
    case PropertyLimit::Kind::Range: return Variant(std::clamp(NumberIn(given), limit.Low, limit.High));
    case PropertyLimit::Kind::StyleOnly:
        if (NumberIn(given) != qgstDefault && NumberIn(given) != qgstPropertyList)
            throw RaiseControlError(qgerrUserDefined, "Quillgrid: Style Method");
        return given;
    case PropertyLimit::Kind::ContainerUnits: return Variant(PixelsOf(NumberIn(given), site));
    case PropertyLimit::Kind::FirstCharacter: return Variant(FirstCharacter(TextIn(given)));
    case PropertyLimit::Kind::Separators: return Variant(Completed(TextIn(given), limit.Needed));
    }
    return given;
}

} // namespace quillgrid
