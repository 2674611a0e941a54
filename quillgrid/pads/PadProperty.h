// The persisted properties of the pads: a row of a table names the key and the field, the default is what a
// fresh settings struct holds.
#pragma once

#include "quillgrid/cells/PropertyValue.h"
#include "quillgrid/platform/PropertyBag.h"

#include <cstddef>
#include <string_view>
#include <utility>

namespace quillgrid {

/// One persisted property of a pad with settings of type `Settings`.
template <typename Settings>
struct PadProperty {
    std::string_view Key;
    Variant (*Read)(const Settings& settings);
    /// A value that has no meaning in the field's type changes nothing.
    void (*Store)(Settings& settings, const Variant& value, const Locale& locale);
};

template <typename Settings, auto Member>
constexpr PadProperty<Settings> PadPropertyOf(std::string_view key) {
    return {key, [](const Settings& settings) { return ToPropertyValue(settings.*Member); },
            [](Settings& settings, const Variant& value, const Locale& locale) {
                using Field = std::remove_reference_t<decltype(settings.*Member)>;
                if (auto converted = PropertyValueFrom<Field>(value, locale))
                    settings.*Member = std::move(*converted);
            }};
}

/// Takes every property from the bag; `settings` holds the defaults before.
template <typename Settings, std::size_t Count>
void ReadPadProperties(const PadProperty<Settings> (&table)[Count], const PropertyBag& bag,
                       const Locale& locale, Settings& settings) {
    for (const auto& property : table)
        property.Store(settings, bag.Read(property.Key, property.Read(settings)), locale);
}

template <typename Settings, std::size_t Count>
void WritePadProperties(const PadProperty<Settings> (&table)[Count], PropertyBag& bag,
                        const Settings& settings, const Settings& defaults) {
    for (const auto& property : table)
        bag.Write(property.Key, property.Read(settings), property.Read(defaults));
}

} // namespace quillgrid
