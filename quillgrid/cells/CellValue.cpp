// How a cell takes and shows its value.

#include "quillgrid/cells/BooleanInput.h"
#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/DisplayText.h"
#include "quillgrid/cells/InputConversion.h"
#include "quillgrid/cells/OwnerServices.h"
#include "quillgrid/locale/Coercion.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace quillgrid {

namespace {

constexpr std::int32_t YesEntry = 1;
constexpr std::int32_t NoEntry = 2;

template <typename T>
Variant OrNull(const std::optional<T>& value) {
    return value ? Variant(*value) : Variant::Null();
}

bool HasNoContent(const Variant& value) {
    const auto* text = value.Get<std::string>();
    return value.IsNull() || value.IsEmpty() || (text && text->empty());
}

Variant TimeOfDay(const Variant& value, const Locale& locale) {
    const auto date = ToDateTime(value, locale);
    return date ? Variant(DateTime{.Day = 0, .Second = date->Second}) : Variant::Null();
}

Variant InTypeOf(ValidationRuleConstants rule, const Variant& value, const Locale& locale) {
    if (rule == qgvrNone) return value;
    if (HasNoContent(value)) return Variant::Null();
    switch (rule) {
    case qgvrInteger: return OrNull(ToLong(value, locale));
    case qgvrCurrency:
    case qgvrEuro: return OrNull(ToCurrency(value, locale));
    case qgvrDouble: return OrNull(ToDouble(value, locale));
    case qgvrDate: return OrNull(ToDateTime(value, locale));
    case qgvrTime: return TimeOfDay(value, locale);
    default: return value;
    }
}

bool IsChange(const Variant& before, const Variant& after) {
    return (after.IsNull() && !before.IsNull()) || !EqualAsText(before, after);
}

/// Multiplies first: 7 percent of 100 are 7 and nothing behind the point, unless the product leaves a double.
double ShareOf(double range, double percentage) {
    const double product = percentage * range;
    return std::isfinite(product) ? product / 100.0 : percentage / 100.0 * range;
}

} // namespace

Variant Cell::Value() const {
    if (IsList() || IsBoolean()) return ItemData();
    return InTypeOf(state_.Rule, state_.Value, UserLocale());
}

void Cell::SetValue(Variant value) {
    Edit();
    AssignValue(std::move(value));
}

void Cell::DefineValue(Variant&& value) {
    struct Scope {
        CellState& State;
        ~Scope() { State.Defining = false; }
    } const scope{state_};
    Edit().Defining = true;
    AssignKept(std::move(value));
    SetChanged(false);
}

void Cell::AssignValue(Variant value) {
    const auto alive = weak_from_this().lock();
    AssignKept(std::move(value));
}

void Cell::AssignKept(Variant&& value) {
    if (IsList() && !IsBoolean() && std::as_const(*this).Listitems().Count() == 0) {
        SetRare(&CellExtras::ItemData, value); // entries may come later and are then searched for it
        state_.ListIndex = -1;
        StoreValue(std::move(value));
        return;
    }
    Take(Accept(std::move(value)));
}

/// The value that the cell would store, or nothing when it is not taken.
std::optional<Variant> Cell::Accept(Variant value) {
    if (IsBoolean()) return AcceptBoolean(value);
    if (IsList()) return AcceptEntry(std::move(value));
    return AcceptInput(std::move(value));
}

std::optional<Variant> Cell::AcceptBoolean(const Variant& value) {
    const auto yes = BooleanFromInput(value, EntryText(YesEntry), EntryText(NoEntry), UserLocale());
    if (!yes) return std::nullopt;
    state_.ListIndex = *yes ? YesEntry : NoEntry;
    const auto& items = std::as_const(*this).Listitems();
    if (items.Count() < NoEntry) { // a rule set by hand, without entries
        SetRare(&CellExtras::ItemData, Variant(static_cast<std::int16_t>(*yes ? -1 : 0)));
    } else {
        const auto entry = items.Item(state_.ListIndex);
        SetRare(&CellExtras::ItemData, entry->ItemData());
        SetListImage(entry->ListImage());
    }
    return Variant(*yes);
}

std::optional<Variant> Cell::AcceptEntry(Variant value) {
    if (value.IsNull()) return std::nullopt;
    const auto& items = std::as_const(*this).Listitems();
    const auto position = items.PositionOfData(value);
    if (position == 0) return std::nullopt;
    SetListImage(items.Item(position)->ListImage());
    SetRare(&CellExtras::ItemData, value);
    state_.ListIndex = position;
    return value;
}

std::optional<Variant> Cell::AcceptInput(Variant value) {
    const InputRules rules{.Rule = state_.Rule,
                           .MaxLength = state_.MaxLength,
                           .Min = &Min(),
                           .Max = &Max(),
                           .Charlist = Charlist(),
                           .AllowEmpty = state_.AllowEmpty};
    const CurrentCellScope current(link_, *this);
    const bool plain = state_.Rule == qgvrNone; // most cells; plain text has no separators
    const InputContext context{plain ? InputSeparators{} : SeparatorsOf(Owner()), UserLocale(),
                               state_.Rule == qgvrDate ? TodayOf(Owner()) : 0};
    if (ConvertInput(value, rules, context) != qgErrNone) return std::nullopt;
    return value;
}

void Cell::Take(std::optional<Variant> accepted) {
    if (accepted) {
        const bool change = IsChange(state_.Value, *accepted);
        StoreValue(std::move(*accepted));
        if (change) state_.Changed = true;
    }
    RefreshText();
    if (state_.Changed) Refresh();
}

/// The value to return to is kept apart from the first assignment that leaves it.
void Cell::StoreValue(Variant value) {
    if (!state_.UndoValue && !state_.Defining && !(state_.Value == value)) {
        state_.UndoValue = std::make_unique<Variant>(std::move(state_.Value));
    }
    state_.Value = std::move(value);
}

void Cell::SetChanged(bool changed) {
    state_.Changed = changed;
    if (!changed) state_.UndoValue.reset();
}

void Cell::SetListIndex(std::int32_t index) {
    if (index == state_.ListIndex) return;
    const auto entry = std::as_const(*this).Listitems().Item(index);
    if (!entry) return;
    if (IsList()) {
        SetValue(entry->ItemData());
    } else {
        Edit().ListIndex = index;
    }
}

void Cell::SetItemData(Variant data) {
    if (IsList()) {
        SetValue(std::move(data));
    } else {
        SetRare(&CellExtras::ItemData, std::move(data));
    }
}

/// Width of the interval from Min to Max, 0 when there is none.
double Cell::Range() const {
    const auto low = ToDouble(Min(), UserLocale());
    const auto high = ToDouble(Max(), UserLocale());
    const double range = low && high ? *high - *low : 0.0;
    return std::isfinite(range) ? range : 0.0;
}

Currency Cell::PercentValue() const {
    const double range = Range();
    const auto value = ToDouble(Value(), UserLocale());
    if (range == 0.0 || !value) return Currency{};
    return Currency::FromDouble(100.0 * *value / range).value_or(Currency{});
}

void Cell::SetPercentValue(Currency percentage) {
    const double limited = std::clamp(percentage.ToDouble(), 0.0, 100.0);
    const double range = Range();
    if (range == 0.0 || limited == 0.0) return;
    const auto alive = weak_from_this().lock();
    StoreValue(Variant(ShareOf(range, limited)));
    RefreshText();
    Refresh();
}

std::string Cell::EntryText(std::int32_t position) const {
    const auto entry = Listitems().Item(position);
    return entry ? entry->Text() : std::string();
}

std::string Cell::MakeText() const {
    if (IsList()) return EntryText(state_.ListIndex);
    if (IsBoolean() && state_.Format.empty()) {
        const auto yes = ToBoolean(state_.Value, UserLocale());
        return yes ? EntryText(*yes ? YesEntry : NoEntry) : std::string();
    }
    return DisplayText(state_.Value, {.Rule = state_.Rule, .Format = state_.Format, .Unit = Unit()},
                       UserLocale(), CurrenciesOf(Owner()));
}

void Cell::RefreshText() {
    state_.Text = MakeText();
    state_.StaleText = false;
}

} // namespace quillgrid
