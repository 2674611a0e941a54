#include "quillgrid/cells/CellProperties.h"

#include "quillgrid/base/NameIndex.h"
#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/PropertyValue.h"

#include <array>
#include <functional>

namespace quillgrid {

namespace {

template <auto Getter>
Variant Read(const Cell& cell) {
    return ToPropertyValue((cell.*Getter)());
}

/// What a setter takes: a member's only parameter, or the second one of a function over a cell.
template <typename Value>
std::decay_t<Value> TakenBy(void (Cell::*)(Value));
template <typename Value>
std::decay_t<Value> TakenBy(void (*)(Cell&, Value));

template <auto Setter>
bool Write(Cell& cell, const Variant& value, const Locale& locale) {
    auto converted = PropertyValueFrom<decltype(TakenBy(Setter))>(value, locale);
    if (converted) std::invoke(Setter, cell, std::move(*converted));
    return converted.has_value();
}

Variant ReadUndoValue(const Cell& cell) {
    return CellAccess::UndoValue(cell);
}

// What code of the host cannot write, a sheet writes past the setters: nothing follows until the next
// Refresh.
constexpr std::array<CellProperty, 51> Table{{
    {"Alignment", Read<&Cell::Alignment>, Write<&Cell::SetAlignment>},
    {"AllowEmpty", Read<&Cell::AllowEmpty>, Write<&Cell::SetAllowEmpty>},
    {"Button", Read<&Cell::Button>, Write<&Cell::SetButton>},
    {"Caption", Read<&Cell::Caption>, Write<&Cell::SetCaption>},
    {"CausesValidation", Read<&Cell::CausesValidation>, Write<&Cell::SetCausesValidation>},
    {"Changed", Read<&Cell::Changed>, Write<&CellAccess::SetChanged>},
    {"CharCase", Read<&Cell::CharCase>, Write<&Cell::SetCharCase>},
    {"Charlist", Read<&Cell::Charlist>, Write<&Cell::SetCharlist>},
    {"DataVisible", Read<&Cell::DataVisible>, Write<&Cell::SetDataVisible>},
    {"Default", Read<&Cell::Default>, Write<&Cell::SetDefault>},
    {"Enabled", Read<&Cell::Enabled>, Write<&Cell::SetEnabled>},
    {"ErrorCode", Read<&Cell::ErrorCode>, Write<&CellAccess::SetErrorCode>},
    {"FillColor", Read<&Cell::FillColor>, Write<&Cell::SetFillColor>},
    {"FontBold", Read<&Cell::FontBold>, Write<&Cell::SetFontBold>},
    {"FontItalic", Read<&Cell::FontItalic>, Write<&Cell::SetFontItalic>},
    {"ForeColor", Read<&Cell::ForeColor>, Write<&Cell::SetForeColor>},
    {"ForeignField", Read<&Cell::ForeignField>, Write<&Cell::SetForeignField>},
    {"ForeignIndex", Read<&Cell::ForeignIndex>, Write<&Cell::SetForeignIndex>},
    {"ForeignKey", Read<&Cell::ForeignKey>, Write<&Cell::SetForeignKey>},
    {"ForeignSource", Read<&Cell::ForeignSource>, Write<&Cell::SetForeignSource>},
    {"Group", Read<&Cell::Group>, Write<&Cell::SetGroup>},
    {"HelpContextID", Read<&Cell::HelpContextID>, Write<&Cell::SetHelpContextID>},
    {"Index", Read<&Cell::Index>, Write<&CellAccess::SetIndex>},
    {"Key", Read<&Cell::Key>, nullptr},
    {"Listimage", Read<&Cell::ListImage>, Write<&Cell::SetListImage>},
    {"ListIndex", Read<&Cell::ListIndex>, Write<&Cell::SetListIndex>},
    {"Locked", Read<&Cell::Locked>, Write<&Cell::SetLocked>},
    {"Max", Read<&Cell::Max>, Write<&Cell::SetMax>},
    {"MaxLength", Read<&Cell::MaxLength>, Write<&Cell::SetMaxLength>},
    {"Min", Read<&Cell::Min>, Write<&Cell::SetMin>},
    {"RecordSource", Read<&Cell::RecordSource>, Write<&Cell::SetRecordSource>},
    {"ShowPercent", Read<&Cell::ShowPercent>, Write<&Cell::SetShowPercent>},
    {"Step", nullptr, nullptr},
    {"Style", Read<&Cell::Style>, Write<&Cell::SetStyle>},
    {"Template", Read<&Cell::Template>, Write<&CellAccess::SetTemplate>},
    {"ToolTipText", Read<&Cell::TooltipText>, Write<&Cell::SetTooltipText>},
    {"UndoValue", ReadUndoValue, Write<&CellAccess::SetUndoValue>},
    {"Unit", Read<&Cell::Unit>, Write<&Cell::SetUnit>},
    {"UserLevelDataVisible", Read<&Cell::UserLevelDataVisible>, Write<&Cell::SetUserLevelDataVisible>},
    {"UserLevelEnabled", Read<&Cell::UserLevelEnabled>, Write<&Cell::SetUserLevelEnabled>},
    {"UserLevelVisible", Read<&Cell::UserlevelVisible>, Write<&Cell::SetUserlevelVisible>},
    {"ValidationRule", Read<&Cell::ValidationRule>, Write<&Cell::SetValidationRule>},
    {"Value", Read<&Cell::Value>, Write<&Cell::SetValue>},
    {"Visible", Read<&Cell::Visible>, Write<&Cell::SetVisible>},
    {"WhatsThisHelpID", Read<&Cell::WhatsThisHelpID>, Write<&Cell::SetWhatsThisHelpID>},
    // Known, but only through an item that the host adds to the sheet itself:
    {"AllowHoliday", Read<&Cell::AllowHoliday>, Write<&Cell::SetAllowHoliday>},
    {"AllowSaturday", Read<&Cell::AllowSaturday>, Write<&Cell::SetAllowSaturday>},
    {"AllowSunday", Read<&Cell::AllowSunday>, Write<&Cell::SetAllowSunday>},
    {"Format", Read<&Cell::Format>, Write<&Cell::SetFormat>},
    {"Increment", Read<&Cell::Increment>, Write<&Cell::SetIncrement>},
    {"ItemData", Read<&Cell::ItemData>, Write<&Cell::SetItemData>},
}};
constexpr std::size_t ListedCount = 45;

constexpr NameIndex<Table.size()> Names(Table);
static_assert(Names.AllDifferent(), "every name leads to one property");

} // namespace

std::span<const CellProperty> ListedCellProperties() {
    return std::span(Table).first(ListedCount);
}

const CellProperty* FindCellProperty(std::string_view name) {
    const auto place = Names.Find(name);
    return place ? &Table[*place] : nullptr;
}

} // namespace quillgrid
