#include "quillgrid/grid/ValueStepper.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/grid/CellRules.h"
#include "quillgrid/locale/Coercion.h"

namespace quillgrid {

namespace {

Currency Negated(Currency step) {
    return Currency::Subtract({}, step).value_or(Currency());
}

std::optional<Variant> SteppedMoney(const Variant& value, Currency step, const Locale& locale) {
    const auto sum = Currency::Add(ToCurrency(value, locale).value_or(Currency()), step);
    return sum ? std::optional<Variant>(*sum) : std::nullopt;
}

Variant SteppedNumber(const Variant& value, Currency step, const Locale& locale) {
    return Variant(ToDouble(value, locale).value_or(0.0) + step.ToDouble());
}

Variant Limited(Variant value, const Cell& cell, const InputContext& context) {
    return ConvertInput(value, RulesOf(cell), context) == qgErrNone ? value : Variant::Null();
}

} // namespace

std::optional<Variant> ValueStepper::SteppedDate(const Cell& cell, Currency step) const {
    const auto date = ToDateTime(cell.Value(), locale_);
    const auto day = AddDays(date ? date->Day : commit_.Context().Today, step.ToInteger());
    return day ? std::optional<Variant>(DateTime{*day, 0}) : std::nullopt;
}

std::optional<Variant> ValueStepper::Stepped(const Cell& cell, bool up) const {
    const Currency step = up ? cell.Increment() : Negated(cell.Increment());
    switch (cell.ValidationRule()) {
    case qgvrInteger:
    case qgvrDouble: return SteppedNumber(cell.Value(), step, locale_);
    case qgvrCurrency:
    case qgvrEuro: return SteppedMoney(cell.Value(), step, locale_);
    case qgvrDate: return SteppedDate(cell, step);
    default: return std::nullopt;
    }
}

bool ValueStepper::Step(char32_t key) {
    const auto cell = state_.Current;
    if ((key != U'+' && key != U'-') || !cell || !IsTyped(*cell)) return false;
    if (!IsEditable(*cell, state_.Settings.UserLevel)) return false;
    if (seat_.IsEdited() && commit_.CommitInPlace() != CommitResult::Done) return true;
    const auto stepped = Stepped(*cell, key == U'+');
    if (!stepped) return false;
    const Variant before = cell->Value();
    const Variant after = Limited(*stepped, *cell, commit_.Context());
    const bool fromNothing = before.IsNull() && cell->ValidationRule() != qgvrDate;
    if (after.IsNull() || EqualAsText(after, fromNothing ? Variant(std::int32_t{0}) : before)) return false;
    cell->SetValue(after);
    Report(cell, before);
    return true;
}

void ValueStepper::Toggle() {
    const auto cell = state_.Current;
    if (!cell || cell->ValidationRule() != qgvrBoolean || !MayChange(*cell)) return;
    const Variant before = cell->Value();
    cell->SetValue(Variant(!ToBoolean(before, locale_).value_or(false)));
    Report(cell, before);
}

void ValueStepper::SelectByTyping(char32_t character) {
    const auto cell = state_.Current;
    if (!cell || !MayChange(*cell)) return;
    const Variant before = cell->Value();
    CellAccess::TypeAhead(*cell, character);
    Report(cell, before);
}

void ValueStepper::TakeText(std::string text) {
    const auto cell = state_.Current;
    if (!cell || !MayChange(*cell)) return;
    const Variant before = cell->Value();
    cell->SetText(std::move(text));
    Report(cell, before);
}

bool ValueStepper::MayChange(const Cell& cell) {
    const bool may = IsEditable(cell, state_.Settings.UserLevel);
    if (!may) events_.Beep();
    return may;
}

void ValueStepper::Report(const std::shared_ptr<Cell>& cell, const Variant& before) {
    seat_.Refill();
    if (!EqualAsText(before, cell->Value())) events_.Change(*cell);
}

} // namespace quillgrid
