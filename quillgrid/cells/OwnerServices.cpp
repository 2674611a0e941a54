#include "quillgrid/cells/OwnerServices.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/platform/Clock.h"

#include <chrono>

namespace quillgrid {

namespace {

/// The day number of 1 January 1970.
constexpr std::int32_t SystemClockEpoch = 25'569;

bool HasControl(const OwnerLinkReference& link) {
    return link && link->Owner;
}

} // namespace

const Locale& LocaleOf(const CellOwner* owner) {
    return owner ? owner->UserLocale() : BuiltInLocale("de-DE");
}

LanguageConstants LanguageOf(const CellOwner* owner) {
    return owner ? owner->Language() : qglgDefault;
}

InputSeparators SeparatorsOf(const CellOwner* owner) {
    return owner ? owner->Separators() : InputSeparators{};
}

CellDefaults DefaultsOf(const CellOwner* owner) {
    return owner ? owner->Defaults() : CellDefaults{};
}

const CurrencyConverter* CurrenciesOf(const CellOwner* owner) {
    return owner ? owner->Currencies() : nullptr;
}

std::int32_t TodayOf(const CellOwner* owner) {
    if (owner) return owner->Time().Now().Day;
    const auto today = std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now());
    return SystemClockEpoch + static_cast<std::int32_t>(today.time_since_epoch().count());
}

std::uint64_t TickCountOf(const CellOwner* owner) {
    if (owner) return owner->Time().TickCount();
    const auto elapsed = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(std::chrono::duration_cast<std::chrono::milliseconds>(elapsed).count());
}

SilentScope::SilentScope(OwnerLinkReference link) : link_(std::move(link)) {
    if (HasControl(link_)) link_->Owner->SetSilent(true);
}

SilentScope::~SilentScope() {
    if (HasControl(link_)) link_->Owner->SetSilent(false);
}

CurrentCellScope::CurrentCellScope(Cell& cell) : CurrentCellScope(CellAccess::Link(cell), cell) {}

CurrentCellScope::CurrentCellScope(OwnerLinkReference link, Cell& cell) : link_(std::move(link)) {
    if (HasControl(link_)) before_ = link_->Owner->ExchangeCurrentCell(&cell);
}

CurrentCellScope::~CurrentCellScope() {
    if (HasControl(link_)) link_->Owner->ExchangeCurrentCell(before_);
}

} // namespace quillgrid
