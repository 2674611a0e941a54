// The properties of the control, one a line, and the orders in which they are read, written and listed.
#pragma once

#include "quillgrid/base/NameIndex.h"
#include "quillgrid/grid/GridProperty.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace quillgrid {

namespace detail {

template <typename T>
T FieldType(T GridSettings::*);

template <auto Member>
Variant ReadField(const GridSettings& settings) {
    return ToPropertyValue(settings.*Member);
}
template <auto Member>
std::optional<Variant> ConvertForField(const Variant& value, const Locale& locale) {
    const auto converted = PropertyValueFrom<decltype(FieldType(Member))>(value, locale);
    return converted ? std::optional(ToPropertyValue(*converted)) : std::nullopt;
}
template <auto Member>
void StoreField(GridSettings& settings, const Variant& value) {
    static const Locale anyLocale; // the value has the field's type already
    if (auto converted = PropertyValueFrom<decltype(FieldType(Member))>(value, anyLocale))
        settings.*Member = std::move(*converted);
}
template <auto Member>
inline constexpr SettingField Field{ReadField<Member>, ConvertForField<Member>, StoreField<Member>};

using G = GridSettings;
using enum PropertyDefault::Kind;

constexpr PropertyDefault Ambient{AmbientFont};
constexpr PropertyDefault Yes{Flag, 1};
constexpr PropertyDefault No{Flag, 0};
constexpr PropertyDefault Small(std::int32_t number) {
    return {Short, number};
}
constexpr PropertyDefault Big(std::uint32_t number) {
    return {Long, static_cast<std::int32_t>(number)};
}
constexpr PropertyDefault Words(std::string_view text) {
    return {Text, 0, text};
}

constexpr PropertyLimit Any{};
constexpr PropertyLimit OneCharacter{PropertyLimit::Kind::FirstCharacter};
constexpr PropertyLimit Units{PropertyLimit::Kind::ContainerUnits};
constexpr PropertyLimit Styles{PropertyLimit::Kind::StyleOnly};
constexpr PropertyLimit Within(std::int32_t low, std::int32_t high) {
    return {PropertyLimit::Kind::Range, low, high};
}
constexpr PropertyLimit Needs(std::u32string_view characters) {
    return {PropertyLimit::Kind::Separators, 0, 0, characters};
}

using namespace effect;

// clang-format off
inline constexpr std::array<GridProperty, 54> Table{{
    {"Font",                  Field<&G::Font>,                  Ambient,         Any,            Repaints},
    {"CellFont",              Field<&G::CellFont>,              Ambient,         Any,            Repaints},
    {"CaptionFont",           Field<&G::CaptionFont>,           Ambient,         Any,            Repaints},
    {"TooltipText",           Field<&G::TooltipText>,           Words(""),       Any,            Repaints, "ToolTipText"},
    {"CellForeColor",         Field<&G::CellForeColor>,         Big(0x80000008), Any,            Repaints},
    {"Alignment",             Field<&G::Alignment>,             Big(0),          Within(0, 1),   Repaints | Compares},
    {"CellForeColorDisabled", Field<&G::CellForeColorDisabled>, Big(0x80000011), Any,            Repaints},
    {"CellBackColor",         Field<&G::CellBackColor>,         Big(0x80000005), Any,            Repaints},
    {"CellBackColorDisabled", Field<&G::CellBackColorDisabled>, Big(0x80000005), Any,            Repaints},
    {"CellForeColorError",    Field<&G::CellForeColorError>,    Big(255),        Any,            Repaints},
    {"UserLevel",             Field<&G::UserLevel>,             Small(0),        Any,            Repaints | Resorts},
    {"AllowEscape",           Field<&G::AllowEscape>,           Yes,             Any,            None},
    {"NumSeparators",         Field<&G::NumSeparators>,         Words(".,"),     Needs(U",."),   None},
    {"TimeSeparators",        Field<&G::TimeSeparators>,        Words(":.,#"),   Needs(U":"),    None},
    {"DateSeparators",        Field<&G::DateSeparators>,        Words(":/.,#"),  Needs(U"/."),   None},
    {"CellCount",             Field<&G::CellCount>,             Small(1),        Within(1, 1000), Repaints | Rebuilds},
    {"Gridcolor",             Field<&G::Gridcolor>,             Big(0x8000000F), Any,            Repaints},
    {"GroupBoxColor",         Field<&G::GroupBoxColor>,         Big(0x80000005), Any,            Repaints, "", "Groupboxcolor"},
    {"Style",                 Field<&G::Style>,                 Small(1),        Styles,         Repaints | Compares | ToTop},
    {"AllowWrap",             Field<&G::AllowWrap>,             Yes,             Any,            None},
    {"AllowEnter",            Field<&G::AllowEnter>,            Yes,             Any,            None},
    {"LabelForeColor",        Field<&G::LabelForeColor>,        Big(0x80000008), Any,            Repaints},
    {"LabelForeColorFocus",   Field<&G::LabelForeColorFocus>,   Big(0x80000008), Any,            Repaints},
    {"LabelBackColor",        Field<&G::LabelBackColor>,        Big(0x8000000F), Any,            Repaints},
    {"LabelBackColorFocus",   Field<&G::LabelBackColorFocus>,   Big(0x8000000F), Any,            Repaints},
    {"BorderStyle",           Field<&G::BorderStyle>,           Big(2),          Any,            Repaints | Compares},
    {"LabelWidth",            Field<&G::LabelWidth>,            Small(0),        Units,          Repaints},
    {"Language",              Field<&G::Language>,              Big(0),          Any,            Repaints | Translates},
    {"PasswordChar",          Field<&G::PasswordChar>,          Words("*"),      OneCharacter,   Repaints},
    {"BackColor",             Field<&G::BackColor>,             Big(0x8000000F), Any,            Repaints | Background},
    {"Caption",               Field<&G::Caption>,               Words(""),       Any,            Repaints},
    {"BorderWidth",           Field<&G::BorderWidth>,           Small(4),        Within(0, 999), Repaints},
    {"BevelWidth",            Field<&G::BevelWidth>,            Small(4),        Within(0, 99),  Repaints},
    {"BevelInner",            Field<&G::BevelInner>,            Small(0),        Any,            Repaints},
    {"ShowTips",              Field<&G::ShowTips>,              Small(0),        Any,            Repaints},
    {"BevelOuter",            Field<&G::BevelOuter>,            Small(0),        Any,            Repaints},
    {"ShowCaption",           Field<&G::ShowCaption>,           No,              Any,            Repaints},
    {"ShowGroupBox",          Field<&G::ShowGroupBox>,          No,              Any,            Repaints},
    {"ShowCloseBox",          Field<&G::ShowCloseBox>,          Yes,             Any,            Repaints},
    {"Appearance",            Field<&G::Appearance>,            Small(0),        Any,            Repaints},
    {"ShowMenuBox",           Field<&G::ShowMenuBox>,           Yes,             Any,            Repaints},
    {"FillColor",             Field<&G::FillColor>,             Big(0x80000001), Any,            Repaints},
    {"Sorted",                Field<&G::Sorted>,                No,              Any,            Repaints | Resorts},
    {"Grouped",               Field<&G::Grouped>,               No,              Any,            Repaints | Resorts},
    {"UseSystemColors",       Field<&G::UseSystemColors>,       Yes,             Any,            Repaints},
    {"AutoHolidays",          Field<&G::AutoHolidays>,          Big(1),          Any,            None},
    {"AllowHoliday",          Field<&G::AllowHoliday>,          Yes,             Any,            None},
    {"AllowSaturday",         Field<&G::AllowSaturday>,         Yes,             Any,            None},
    {"AllowSunday",           Field<&G::AllowSunday>,           Yes,             Any,            None},
    {"FirstDayOfWeek",        Field<&G::FirstDayOfWeek>,        Small(0),        Any,            DatePad},
    {"FirstWeekOfYear",       Field<&G::FirstWeekOfYear>,       Small(0),        Any,            DatePad},
    {"WorkHoliday",           Field<&G::WorkHoliday>,           No,              Any,            DatePad},
    {"WorkSaturday",          Field<&G::WorkSaturday>,          No,              Any,            DatePad},
    {"WorkSunday",            Field<&G::WorkSunday>,            No,              Any,            DatePad},
}};
// clang-format on

inline constexpr NameIndex<Table.size()> Names(Table);

/// Rows of the table by their names; a name that is unknown or comes twice does not compile.
template <std::size_t Count>
consteval std::array<std::uint8_t, Count> Order(const std::array<std::string_view, Count>& names) {
    std::array<std::uint8_t, Count> order{};
    for (std::size_t i = 0; i < Count; ++i) {
        order[i] = static_cast<std::uint8_t>(*Names.Find(names[i]));
        if (std::find(order.begin(), order.begin() + i, order[i]) != order.begin() + i) throw "twice";
    }
    return order;
}

} // namespace detail

/// The property of a name, found by the compiler; an unknown name does not compile.
consteval const GridProperty& PropertyNamed(std::string_view name) {
    return detail::Table[*detail::Names.Find(name)];
}

/// How many sample cells come first, since the cells are made from it; the calendar last.
inline constexpr auto ReadOrder = detail::Order<54>({"CellCount",
                                                     "Font",
                                                     "CellFont",
                                                     "CaptionFont",
                                                     "TooltipText",
                                                     "CellForeColor",
                                                     "Alignment",
                                                     "CellForeColorDisabled",
                                                     "CellBackColor",
                                                     "CellBackColorDisabled",
                                                     "CellForeColorError",
                                                     "UserLevel",
                                                     "AllowEscape",
                                                     "NumSeparators",
                                                     "TimeSeparators",
                                                     "DateSeparators",
                                                     "Gridcolor",
                                                     "Style",
                                                     "AllowWrap",
                                                     "AllowEnter",
                                                     "LabelForeColor",
                                                     "LabelForeColorFocus",
                                                     "LabelBackColor",
                                                     "LabelBackColorFocus",
                                                     "GroupBoxColor",
                                                     "BorderStyle",
                                                     "LabelWidth",
                                                     "Language",
                                                     "PasswordChar",
                                                     "BackColor",
                                                     "Caption",
                                                     "BorderWidth",
                                                     "ShowTips",
                                                     "BevelWidth",
                                                     "BevelInner",
                                                     "BevelOuter",
                                                     "ShowCaption",
                                                     "ShowGroupBox",
                                                     "ShowCloseBox",
                                                     "Appearance",
                                                     "ShowMenuBox",
                                                     "FillColor",
                                                     "Sorted",
                                                     "Grouped",
                                                     "UseSystemColors",
                                                     "AllowHoliday",
                                                     "AllowSaturday",
                                                     "AllowSunday",
                                                     "FirstDayOfWeek",
                                                     "FirstWeekOfYear",
                                                     "WorkHoliday",
                                                     "WorkSaturday",
                                                     "WorkSunday",
                                                     "AutoHolidays"});

inline constexpr auto WriteOrder = detail::Order<54>({"Font",
                                                      "CellFont",
                                                      "CaptionFont",
                                                      "TooltipText",
                                                      "CellForeColor",
                                                      "Alignment",
                                                      "CellForeColorDisabled",
                                                      "CellBackColor",
                                                      "CellBackColorDisabled",
                                                      "CellForeColorError",
                                                      "UserLevel",
                                                      "AllowEscape",
                                                      "NumSeparators",
                                                      "TimeSeparators",
                                                      "DateSeparators",
                                                      "CellCount",
                                                      "Gridcolor",
                                                      "Style",
                                                      "AllowWrap",
                                                      "AllowEnter",
                                                      "LabelForeColor",
                                                      "LabelForeColorFocus",
                                                      "LabelBackColor",
                                                      "LabelBackColorFocus",
                                                      "Groupboxcolor",
                                                      "BorderStyle",
                                                      "LabelWidth",
                                                      "Language",
                                                      "PasswordChar",
                                                      "BackColor",
                                                      "Caption",
                                                      "BorderWidth",
                                                      "BevelWidth",
                                                      "BevelInner",
                                                      "ShowTips",
                                                      "BevelOuter",
                                                      "ShowCaption",
                                                      "ShowGroupBox",
                                                      "ShowCloseBox",
                                                      "Appearance",
                                                      "ShowMenuBox",
                                                      "FillColor",
                                                      "Sorted",
                                                      "Grouped",
                                                      "UseSystemColors",
                                                      "AutoHolidays",
                                                      "AllowHoliday",
                                                      "AllowSaturday",
                                                      "AllowSunday",
                                                      "FirstDayOfWeek",
                                                      "FirstWeekOfYear",
                                                      "WorkHoliday",
                                                      "WorkSaturday",
                                                      "WorkSunday"});

/// All but the fonts.
inline constexpr auto SheetOrder = detail::Order<51>({"Alignment",
                                                      "AllowEnter",
                                                      "AllowEscape",
                                                      "AllowHoliday",
                                                      "AllowSaturday",
                                                      "AllowSunday",
                                                      "AutoHolidays",
                                                      "AllowWrap",
                                                      "Appearance",
                                                      "BackColor",
                                                      "BevelInner",
                                                      "BevelOuter",
                                                      "BevelWidth",
                                                      "BorderStyle",
                                                      "BorderWidth",
                                                      "Caption",
                                                      "CellBackColor",
                                                      "CellBackColorDisabled",
                                                      "CellCount",
                                                      "CellForeColor",
                                                      "CellForeColorDisabled",
                                                      "CellForeColorError",
                                                      "DateSeparators",
                                                      "FillColor",
                                                      "FirstDayOfWeek",
                                                      "FirstWeekOfYear",
                                                      "Gridcolor",
                                                      "Grouped",
                                                      "GroupBoxColor",
                                                      "LabelBackColor",
                                                      "LabelBackColorFocus",
                                                      "LabelForeColor",
                                                      "LabelForeColorFocus",
                                                      "LabelWidth",
                                                      "Language",
                                                      "NumSeparators",
                                                      "PasswordChar",
                                                      "ShowCaption",
                                                      "ShowCloseBox",
                                                      "ShowGroupBox",
                                                      "ShowMenuBox",
                                                      "ShowTips",
                                                      "Sorted",
                                                      "Style",
                                                      "TimeSeparators",
                                                      "TooltipText",
                                                      "UserLevel",
                                                      "UseSystemColors",
                                                      "WorkHoliday",
                                                      "WorkSaturday",
                                                      "WorkSunday"});

inline constexpr const GridProperty& PropertyAt(std::uint8_t row) {
    return detail::Table[row];
}

/// The property under a name, in any case; null when there is none.
inline const GridProperty* FindGridProperty(std::string_view name) {
    const auto row = detail::Names.Find(name);
    return row ? &detail::Table[*row] : nullptr;
}

} // namespace quillgrid
