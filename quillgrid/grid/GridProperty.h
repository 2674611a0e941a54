#pragma once

#include "quillgrid/base/Variant.h"
#include "quillgrid/cells/PropertyValue.h"
#include "quillgrid/grid/GridSettings.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillgrid {

/// How one field of the settings is reached without knowing its type.
struct SettingField {
    Variant (*Read)(const GridSettings& settings);
    /// The value in the field's type, or nothing when it has no meaning there.
    std::optional<Variant> (*Convert)(const Variant& value, const Locale& locale);
    /// Takes what Convert gave.
    void (*Store)(GridSettings& settings, const Variant& value);

    friend bool operator==(const SettingField&, const SettingField&) = default;
};

/// The default of a property, in the type under which a property bag keeps it.
struct PropertyDefault {
    enum class Kind : std::uint8_t { AmbientFont, Flag, Short, Long, Text };

    Kind Type = Kind::AmbientFont;
    std::int32_t Number = 0;
    std::string_view Words{};

    Variant Value(const Font& ambient) const;
};

/// What a setter does to a value before it stores it.
struct PropertyLimit {
    enum class Kind : std::uint8_t {
        None,
        Range,          ///< brought into Low..High
        StyleOnly,      ///< anything but 0 and 1 is error 20099
        ContainerUnits, ///< lengths of the container, kept as pixels; a negative one is 0
        FirstCharacter, ///< of a text; an empty one is "*"
        Separators,     ///< characters of Needed that are missing are put in front, one after the other
    };

    Kind Type = Kind::None;
    std::int32_t Low = 0;
    std::int32_t High = 0;
    std::u32string_view Needed{};
};

/// What follows when a property is set. Every setter reports to the container.
namespace effect {
inline constexpr std::uint16_t None = 0;
inline constexpr std::uint16_t Compares = 1;    ///< setting an equal value does nothing at all
inline constexpr std::uint16_t Repaints = 2;    ///< Refresh, at design time
inline constexpr std::uint16_t Resorts = 4;     ///< the next Refresh orders the rows anew
inline constexpr std::uint16_t ToTop = 8;       ///< the first row becomes current and the first one in view
inline constexpr std::uint16_t Translates = 16; ///< lists of cells that speak a language are filled anew
inline constexpr std::uint16_t Background = 32; ///< becomes the colour of the window as well
inline constexpr std::uint16_t Rebuilds = 64;   ///< the sample cells are made anew
inline constexpr std::uint16_t DatePad = 128;   ///< passed on to the calendar
} // namespace effect

/// One property of the control: all that setters, the property bag and the property sheet know of it.
struct GridProperty {
    std::string_view Name; ///< in the property sheet
    SettingField Field;
    PropertyDefault Default;
    PropertyLimit Limit;
    std::uint16_t Effects = effect::None;
    std::string_view Key{};      ///< in the property bag, where it is spelt unlike the name
    std::string_view WriteKey{}; ///< for writing, where it is spelt unlike the key for reading

    constexpr bool Has(std::uint16_t wanted) const { return (Effects & wanted) != 0; }
    constexpr std::string_view BagKey() const { return Key.empty() ? Name : Key; }
    constexpr std::string_view BagWriteKey() const { return WriteKey.empty() ? BagKey() : WriteKey; }
};

} // namespace quillgrid
