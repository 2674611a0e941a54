#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/cells/CellLists.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace quillgrid {

/// Which value a template assigns.
enum class TemplateValue : std::uint8_t { Given, Present, EmptyText, Salutation, SecondEntry };

/// What a template does to the bounds and the default of a cell.
enum class TemplateBounds : std::uint8_t { Kept, Null, Percentage };

/// The arguments of `Cell::DefineData`.
struct TemplateData {
    ValidationRuleConstants Rule = qgvrNone;
    std::string_view Format{};
    std::int32_t MaxLength = 50;
    TemplateBounds Bounds = TemplateBounds::Kept;
};

/// The arguments of `Cell::DefineLayout`; no template of this kind sets a case.
struct TemplateLayout {
    CellStyleConstants Style = qgcsText;
    std::optional<std::string_view> Image{};
    AlignmentConstants Alignment = qgalLeftJustify;
    ButtonStyleConstants Button = qgbtNone;
};

/// One template: what is not set here stays in the cell as it was.
struct CellTemplate {
    CellTemplateConstants Number = qgctNone;
    TemplateValue Value = TemplateValue::Given;
    std::optional<std::string_view> Unit{};
    std::optional<TemplateData> Data{};
    std::optional<TemplateLayout> Layout{};
    ListFiller Fill = nullptr;
    std::optional<ValidationRuleConstants> Rule{};
    std::optional<CellStyleConstants> Style{};
    std::optional<std::string_view> Image{};
    std::optional<AlignmentConstants> Alignment{};
    std::optional<ButtonStyleConstants> Button{};
    std::optional<std::string_view> Charlist{};
    std::optional<CharCaseConstants> CharCase{};
    bool PercentBar = false;
};

/// The template with a number, or nothing.
const CellTemplate* FindTemplate(CellTemplateConstants number);

} // namespace quillgrid
