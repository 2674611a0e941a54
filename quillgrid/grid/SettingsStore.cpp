#include "quillgrid/grid/SettingsStore.h"

#include "quillgrid/grid/GridPropertyTable.h"
#include "quillgrid/grid/PropertyLimits.h"

namespace quillgrid {

namespace {

/// Default values fit every type's field in any locale.
void StoreDefault(GridSettings& settings, const GridProperty& property, const Font& ambient) {
    static const Locale anyLocale;
    if (const auto value = property.Field.Convert(property.Default.Value(ambient), anyLocale))
        property.Field.Store(settings, *value);
}

bool IsLimitedOnLoading(const GridProperty& property) {
    return property.Limit.Type == PropertyLimit::Kind::Separators || property.Has(effect::Rebuilds);
}

} // namespace

GridSettings DefaultSettings(const Font& ambient) {
    GridSettings settings;
    for (const GridProperty& property : detail::Table)
        StoreDefault(settings, property, ambient);
    return settings;
}

GridSettings ReadSettings(const PropertyBag& bag, const Site& site, const Locale& locale) {
    const Font ambient = site.AmbientFont();
    GridSettings settings = DefaultSettings(ambient);
    for (const std::uint8_t row : ReadOrder) {
        const GridProperty& property = PropertyAt(row);
        const Variant kept = bag.Read(property.BagKey(), property.Default.Value(ambient));
        auto value = property.Field.Convert(kept, locale);
        if (!value) continue;
        if (IsLimitedOnLoading(property)) value = Limited(property.Limit, std::move(*value), site);
        property.Field.Store(settings, *value);
    }
    return settings;
}

void WriteSettings(const GridSettings& settings, PropertyBag& bag, const Font& ambient) {
    for (const std::uint8_t row : WriteOrder) {
        const GridProperty& property = PropertyAt(row);
        bag.Write(property.BagWriteKey(), property.Field.Read(settings), property.Default.Value(ambient));
    }
}

} // namespace quillgrid
