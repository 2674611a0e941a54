#include "quillgrid/cells/CellDefinition.h"

#include "quillgrid/cells/CellTemplates.h"
#include "quillgrid/cells/OwnerServices.h"
#include "quillgrid/locale/Coercion.h"

#include <utility>

namespace quillgrid {

namespace {

constexpr std::int16_t FirstSalutation = 1;
constexpr std::int16_t LastSalutation = 3;

void SetBounds(DataArguments& data, TemplateBounds bounds) {
    if (bounds == TemplateBounds::Kept) return;
    const bool percentage = bounds == TemplateBounds::Percentage;
    data.newMin = percentage ? Variant(std::int16_t{0}) : Variant::Null();
    data.newMax = percentage ? Variant(std::int16_t{100}) : Variant::Null();
    data.newDefault = percentage ? Variant(std::int16_t{0}) : Variant::Null();
}

} // namespace

void CellDefinition::Apply(DefineArguments&& arguments) {
    Variant value = arguments.NewValue ? std::move(*arguments.NewValue) : cell_.state_.Value;
    cell_.state_.Group = std::move(arguments.NewGroup);
    cell_.state_.Template = arguments.NewCellTemplate;
    cell_.SetValidationRule(qgvrNone);
    cell_.SetStyle(qgcsText);
    if (arguments.NewCaption) cell_.SetCaption(ToText(*arguments.NewCaption, cell_.UserLocale()));
    ClearBounds();
    if (const auto* row = FindTemplate(arguments.NewCellTemplate)) {
        ApplyTemplate(*row, std::move(value));
    } else {
        cell_.DefineValue(std::move(value));
    }
    cell_.SetChanged(false);
}

void CellDefinition::ClearBounds() {
    if (!cell_.extras_) return; // the cell has none
    cell_.SetMin(Variant::Null());
    cell_.SetMax(Variant::Null());
    cell_.SetDefault(Variant::Null());
}

void CellDefinition::ApplyTemplate(const CellTemplate& row, Variant&& newValue) {
    if (row.Unit) cell_.SetUnit(std::string(*row.Unit));
    if (!row.Data) {
        ApplySettings(row);
        AssignValue(row, std::move(newValue));
        return;
    }
    AssignValue(row, std::move(newValue));
    ApplyLayout(row);
    if (!row.PercentBar) return;
    cell_.SetShowPercent(true);
    cell_.SetFillColor(DefaultsOf(cell_.Owner()).FillColor);
}

void CellDefinition::AssignValue(const CellTemplate& row, Variant&& newValue) {
    Variant value = StartValue(row, std::move(newValue));
    if (!row.Data) return cell_.DefineValue(std::move(value));
    DataArguments data{.NewValue = std::move(value),
                       .NewValidationRule = row.Data->Rule,
                       .newFormat = std::string(row.Data->Format),
                       .newMaxLength = row.Data->MaxLength};
    SetBounds(data, row.Data->Bounds);
    cell_.ApplyData(std::move(data));
}

Variant CellDefinition::StartValue(const CellTemplate& row, Variant&& newValue) const {
    switch (row.Value) {
    case TemplateValue::Given: break;
    case TemplateValue::Present: return cell_.Value();
    case TemplateValue::EmptyText: return "";
    case TemplateValue::SecondEntry: return std::int16_t{1};
    case TemplateValue::Salutation: {
        const auto number = ToDouble(newValue, cell_.UserLocale());
        if (!number || !(*number >= FirstSalutation && *number <= LastSalutation)) return FirstSalutation;
    }
    }
    return std::move(newValue);
}

void CellDefinition::ApplyLayout(const CellTemplate& row) {
    if (!row.Layout) return;
    LayoutArguments layout{.NewStyle = row.Layout->Style,
                           .newAlignment = row.Layout->Alignment,
                           .newButton = row.Layout->Button};
    if (row.Layout->Image) layout.newListimage = Variant(*row.Layout->Image);
    cell_.DefineLayout(std::move(layout));
}

void CellDefinition::ApplySettings(const CellTemplate& row) {
    if (row.Rule) cell_.SetValidationRule(*row.Rule);
    if (row.Fill) row.Fill(cell_.Listitems(), cell_.Owner());
    if (row.Style) cell_.SetStyle(*row.Style);
    if (row.Image) cell_.SetListImage(Variant(*row.Image));
    if (row.Alignment) cell_.SetAlignment(*row.Alignment);
    if (row.Button) cell_.SetButton(*row.Button);
    if (row.Charlist) cell_.SetCharlist(std::string(*row.Charlist));
    if (row.CharCase) cell_.SetCharCase(*row.CharCase);
}

} // namespace quillgrid
