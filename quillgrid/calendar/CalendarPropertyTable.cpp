#include "quillgrid/calendar/CalendarPropertyTable.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/locale/Coercion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <concepts>
#include <optional>
#include <string>
#include <type_traits>

namespace quillgrid {

namespace {

template <typename T>
Variant ToKept(const T& value) {
    if constexpr (std::is_enum_v<T> || std::same_as<T, Colour>) {
        return Variant(static_cast<std::int32_t>(value));
    } else if constexpr (std::same_as<T, Font>) {
        return Variant(std::make_shared<std::any>(value));
    } else {
        return Variant(value);
    }
}

std::optional<Colour> ColourFromKept(const Variant& value, const Locale& locale) {
    const auto number = ToDouble(value, locale);
    if (!number || *number < -2147483648.0 || *number > 4294967295.0) return std::nullopt;
    return static_cast<Colour>(static_cast<std::int64_t>(std::nearbyint(*number)));
}

std::optional<Font> FontFromKept(const Variant& value) {
    const auto* object = value.Get<ObjectReference>();
    const Font* font = object && *object ? std::any_cast<Font>(object->get()) : nullptr;
    return font ? std::optional(*font) : std::nullopt;
}

/// Nothing when the value has no meaning in the type.
template <typename T>
std::optional<T> FromKept(const Variant& value, const Locale& locale) {
    if (value.IsNull() || value.IsEmpty()) return std::nullopt;
    if constexpr (std::same_as<T, bool>) {
        return ToBoolean(value, locale);
    } else if constexpr (std::same_as<T, Colour>) {
        return ColourFromKept(value, locale);
    } else if constexpr (std::same_as<T, DateTime>) {
        return ToDateTime(value, locale);
    } else if constexpr (std::same_as<T, Font>) {
        return FontFromKept(value);
    } else if constexpr (std::same_as<T, std::string>) {
        return value.Get<ObjectReference>() ? std::nullopt : std::optional(ToText(value, locale));
    } else {
        const auto number = ToLong(value, locale);
        return number ? std::optional(static_cast<T>(*number)) : std::nullopt;
    }
}

struct CalendarProperty {
    std::string_view Key;
    Variant (*Read)(const CalendarValues& values);
    void (*Store)(CalendarValues& values, const Variant& kept, const Locale& locale);
    bool Repaints;
};

/// The field at the end of a path of members.
template <auto First, auto... Rest>
auto& Reach(auto& object) {
    if constexpr (sizeof...(Rest) == 0) {
        return object.*First;
    } else {
        return Reach<Rest...>(object.*First);
    }
}

template <auto... Path>
constexpr CalendarProperty Row(std::string_view key, bool repaints) {
    return {key, [](const CalendarValues& values) { return ToKept(Reach<Path...>(values)); },
            [](CalendarValues& values, const Variant& kept, const Locale& locale) {
                auto& field = Reach<Path...>(values);
                if (auto value = FromKept<std::remove_reference_t<decltype(field)>>(kept, locale))
                    field = std::move(*value);
            },
            repaints};
}

template <auto Member>
constexpr CalendarProperty Pad(std::string_view key, bool repaints = true) {
    return Row<&CalendarValues::Pad, Member>(key, repaints);
}
template <auto... Path>
constexpr CalendarProperty Days(std::string_view key, bool repaints = true) {
    return Row<&CalendarValues::Days, Path...>(key, repaints);
}

using P = CalendarPadSettings;
using S = CalendarSettings;
constexpr bool Silent = false;

// In the order of reading.
constexpr std::array<CalendarProperty, 31> Table{{
    Pad<&P::Enabled>("Enabled", Silent),
    Pad<&P::ShowMenu>("ShowMenu", Silent),
    Pad<&P::BackColor>("BackColor"),
    Pad<&P::Font>("Font"),
    Pad<&P::ForeColor>("ForeColor"),
    Days<&S::MinDate>("MinDate"),
    Days<&S::MaxDate>("MaxDate"),
    Days<&S::FirstDayOfWeek>("FirstDayOfWeek"),
    Days<&S::FirstWeekOfYear>("FirstWeekOfYear"),
    Pad<&P::ForeColorSunday>("ForeColorSunday"),
    Pad<&P::ForeColorHoliday>("ForeColorHoliday"),
    Pad<&P::ForeColorSaturDay>("ForeColorSaturDay"),
    Days<&S::Allow, &DayFlags::Sunday>("AllowSunday"),
    Days<&S::Allow, &DayFlags::Saturday>("AllowSaturday"),
    Days<&S::Allow, &DayFlags::Holiday>("AllowHoliday"),
    Days<&S::Work, &DayFlags::Sunday>("WorkSunday"),
    Days<&S::Work, &DayFlags::Saturday>("WorkSaturday"),
    Days<&S::Work, &DayFlags::Holiday>("WorkHoliday"),
    Pad<&P::BackColorSunday>("BackColorSunday"),
    Pad<&P::BackColorSaturday>("BackcolorSaturday"),
    Pad<&P::BackColorWeek>("BackColorWeek"),
    Pad<&P::BackColorGrid>("BackColorGrid"),
    Pad<&P::ForeColorWeek>("ForeColorWeek"),
    Pad<&P::ForeColorDaynames>("ForeColorDaynames"),
    Days<&S::ConfigGermany>("ConfigGermany", Silent),
    Days<&S::ConfigAustria>("ConfigAustria", Silent),
    Days<&S::ConfigSwitzerland>("ConfigSwitzerland", Silent),
    Days<&S::ConfigEurope>("ConfigEurope", Silent),
    Pad<&P::ShowButtons>("ShowButtons"),
    Days<&S::CurrentDate>("CurrentDate", Silent),
    Days<&S::AutoHolidays>("AutoHolidays", Silent),
}};

constexpr std::array<std::string_view, Table.size()> WriteOrder{
    "Enabled",           "ShowMenu",        "BackColor",        "Font",
    "ForeColor",         "MinDate",         "MaxDate",          "FirstDayOfWeek",
    "FirstWeekOfYear",   "ForeColorSunday", "ForeColorHoliday", "ForeColorSaturDay",
    "CurrentDate",       "AllowSunday",     "AllowSaturday",    "AllowHoliday",
    "WorkSunday",        "WorkSaturday",    "WorkHoliday",      "BackColorSunday",
    "BackcolorSaturday", "BackColorWeek",   "BackColorGrid",    "ForeColorWeek",
    "ForeColorDaynames", "AutoHolidays",    "ConfigGermany",    "ConfigAustria",
    "ConfigSwitzerland", "ConfigEurope",    "ShowButtons"};

constexpr const CalendarProperty* Find(std::string_view key) {
    for (const CalendarProperty& property : Table) {
        if (property.Key == key) return &property;
    }
    return nullptr;
}

static_assert(std::all_of(WriteOrder.begin(), WriteOrder.end(), Find), "a key that is not in the table");

} // namespace

void ReadCalendarValues(const PropertyBag& bag, const Locale& locale, const CalendarValues& defaults,
                        CalendarValues& values) {
    for (const CalendarProperty& property : Table)
        property.Store(values, bag.Read(property.Key, property.Read(defaults)), locale);
}

void WriteCalendarValues(PropertyBag& bag, const CalendarValues& values, const CalendarValues& defaults) {
    for (const std::string_view key : WriteOrder) {
        const CalendarProperty& property = *Find(key);
        bag.Write(key, property.Read(values), property.Read(defaults));
    }
}

bool IsCalendarLook(std::string_view key) {
    const CalendarProperty* const property = Find(key);
    return property && property->Repaints;
}

} // namespace quillgrid
