#include "quillgrid/grid/PropertySetter.h"

#include "quillgrid/base/Decimal.h"
#include "quillgrid/base/Text.h"
#include "quillgrid/cells/CellLists.h"
#include "quillgrid/grid/GridPropertyTable.h"
#include "quillgrid/grid/PropertyLimits.h"

#include <cmath>

namespace quillgrid {

namespace {

/// More sample cells than this take a moment that a pointer should explain.
constexpr std::int32_t ManyCells = 50;

} // namespace

bool PropertySetter::Set(const GridProperty& property, const Variant& value) {
    if (state_.Terminated) return true;
    auto given = property.Field.Convert(value, ports_.UserLocale);
    if (!given) return false;
    if (property.Has(effect::Compares) && *given == property.Field.Read(state_.Settings)) return true;
    property.Field.Store(state_.Settings, Limited(property.Limit, std::move(*given), ports_.Container));
    FollowBefore(property);
    Report(property.BagKey());
    FollowAfter(property);
    return true;
}

Variant PropertySetter::Get(const GridProperty& property) const {
    Variant value = property.Field.Read(state_.Settings);
    if (property.Limit.Type != PropertyLimit::Kind::ContainerUnits || state_.Terminated) return value;
    const auto units = std::nearbyint(ports_.Container.ToContainerUnits(state_.Settings.LabelWidth));
    return RoundToLong(units).value_or(state_.Settings.LabelWidth);
}

void PropertySetter::FollowBefore(const GridProperty& property) {
    if (property.Has(effect::Resorts)) state_.ResortNeeded = true;
    if (property.Has(effect::Translates)) Translate();
    if (property.Has(effect::Background)) ports_.Window.SetBackColour(state_.Settings.BackColor);
    if (property.Has(effect::ToTop)) ShowFirstRow();
}

void PropertySetter::FollowAfter(const GridProperty& property) {
    if (state_.Terminated) return;
    if (property.Has(effect::DatePad)) dates_.TakeSettings();
    if (property.Has(effect::Rebuilds)) return Rebuild();
    if (property.Has(effect::Repaints) && !state_.UserMode) refresher_.Refresh();
}

void PropertySetter::Report(std::string_view key) {
    if (!state_.Terminated) ports_.Container.PropertyChanged(key);
}

/// Where a handler keeps the user in the cell, the view stays with it.
void PropertySetter::ShowFirstRow() {
    if (state_.UserMode) {
        selector_.Select(1);
    } else {
        view_.ShowFrom(1);
        state_.Current = state_.RowCell(1);
        state_.CurrentRow = state_.Current ? 1 : 0;
    }
}

void PropertySetter::Rebuild() {
    const bool many = state_.Settings.CellCount > ManyCells;
    if (many) ports_.Window.SetPointer(MousePointer::Busy);
    samples_.Load();
    if (!state_.UserMode) refresher_.Refresh();
    if (many && !state_.Terminated) ports_.Window.SetPointer(MousePointer::Default);
}

void PropertySetter::Translate() {
    if (ports_.Currencies) ports_.Currencies->SetLanguage(state_.Settings.Language);
    for (const auto& cell : cells_)
        RefillLanguageTexts(*cell);
}

void PropertySetter::AmbientChanged(std::string_view name) {
    if (!EqualIgnoreCase(name, "ScaleUnits")) return;
    Report(PropertyNamed("LabelWidth").BagKey());
    refresher_.Refresh();
}

} // namespace quillgrid
