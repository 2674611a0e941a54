#include "quillgrid/cells/Cell.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/CellDefinition.h"
#include "quillgrid/cells/LanguageTexts.h"
#include "quillgrid/cells/OwnerServices.h"

#include <utility>

namespace quillgrid {

const Locale& Cell::UserLocale() const {
    return LocaleOf(Owner());
}

CellExtras& Cell::WritableExtras() {
    if (!extras_) extras_ = std::make_unique<CellExtras>();
    return *extras_;
}

const DataBinding& Cell::Binding() const {
    static const DataBinding none;
    return Extras().Binding ? *Extras().Binding : none;
}

void Cell::SetBinding(std::string DataBinding::*field, std::string name) {
    if (name == Binding().*field) return;
    auto& binding = WritableExtras().Binding;
    if (!binding) binding = std::make_unique<DataBinding>();
    (*binding).*field = std::move(name);
}

class Listitems& Cell::Listitems() {
    Edit(); // whoever asks for them in this way may change them
    auto& items = WritableExtras().Items;
    if (!items) items = std::make_unique<class Listitems>();
    return *items;
}

const class Listitems& Cell::Listitems() const {
    static const class Listitems none;
    return Extras().Items ? *Extras().Items : none;
}

void Cell::SetFormat(std::string format) {
    Edit().Format = std::move(format);
    state_.StaleText = true;
}

void Cell::SetUnit(std::string unit) {
    SetRare(&CellExtras::Unit, std::move(unit));
    RefreshText();
}

void Cell::SetValidationRule(ValidationRuleConstants rule) {
    if (std::exchange(Edit().Rule, rule) != rule) state_.StaleText = true;
}

void Cell::SetStyle(CellStyleConstants style) {
    if (std::exchange(Edit().Style, style) != style) state_.StaleText = true;
}

void Cell::SetForeColor(Colour colour) {
    if (std::exchange(Edit().ForeColor, colour) != colour) state_.Repaint = true;
}

void Cell::SetFontBold(bool bold) {
    if (state_.FontBold != bold) state_.Repaint = true;
    Edit().FontBold = bold;
}

void Cell::SetFontItalic(bool italic) {
    if (state_.FontItalic != italic) state_.Repaint = true;
    Edit().FontItalic = italic;
}

void Cell::SetGroup(std::string key) {
    if (EqualIgnoreCase(key, state_.Group)) return;
    Edit().Group = std::move(key);
    if (auto* owner = Owner()) owner->OrderChanged();
}

void Cell::Define(DefineArguments arguments) {
    const auto alive = weak_from_this().lock();
    const SilentScope silent(link_);
    Edit();
    try {
        CellDefinition(*this).Apply(std::move(arguments));
    } catch (...) {
        throw RaiseControlError(20099, "Quillgrid.Cell: Define Method");
    }
}

void Cell::DefineData(DataArguments arguments) {
    const auto alive = weak_from_this().lock();
    const SilentScope silent(link_);
    ApplyData(std::move(arguments));
}

void Cell::ApplyData(DataArguments&& arguments) {
    SetFormat(std::move(arguments.newFormat));
    SetMaxLength(arguments.newMaxLength);
    if (arguments.newMin) SetMin(std::move(*arguments.newMin));
    if (arguments.newMax) SetMax(std::move(*arguments.newMax));
    if (arguments.newDefault) SetDefault(std::move(*arguments.newDefault));
    SetAllowEmpty(arguments.newAllowEmpty);
    SetValidationRule(arguments.NewValidationRule);
    DefineValue(std::move(arguments.NewValue));
}

void Cell::DefineLayout(LayoutArguments arguments) {
    SetStyle(arguments.NewStyle);
    if (arguments.newListimage) SetListImage(std::move(*arguments.newListimage));
    SetAlignment(arguments.newAlignment);
    SetButton(arguments.newButton);
    SetCharCase(arguments.newCharCase);
}

void Cell::DefineRestrictions(std::int32_t newUserlevelVisible, std::int32_t newUserLevelDataVisible,
                              std::int32_t newUserLevelEnabled) {
    SetUserlevelVisible(newUserlevelVisible);
    SetUserLevelDataVisible(newUserLevelDataVisible);
    SetUserLevelEnabled(newUserLevelEnabled);
}

void Cell::Clear() {
    state_ = CellState{};
    CellExtras fresh;
    fresh.ItemData = std::int16_t{0};
    fresh.Items = std::move(WritableExtras().Items);
    if (fresh.Items) *fresh.Items = {}; // the same object: the host may hold a reference to the entries
    *extras_ = std::move(fresh);
}

void Cell::Undo() {
    const auto alive = weak_from_this().lock();
    AssignValue(state_.UndoValue ? *state_.UndoValue : state_.Value);
    state_.ErrorCode = qgErrNone;
    state_.Changed = false;
    if (auto* owner = Owner()) owner->ValueUndone(*this);
}

void Cell::Refresh() {
    auto* owner = Owner();
    if (owner && !owner->Silent()) owner->RepaintRow(*this);
}

void Cell::SetFocus() {
    if (auto* owner = Owner()) owner->FocusCell(*this);
}

std::shared_ptr<class Properties> Cell::Properties() const {
    auto* owner = Owner();
    return owner ? owner->CellSheet() : nullptr;
}

void Cell::DefineFromDataDictionary(const Record& record) {
    if (auto* owner = Owner()) owner->DefineCurrentCell(record);
}

} // namespace quillgrid
