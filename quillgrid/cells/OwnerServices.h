#pragma once

#include "quillgrid/cells/CellOwner.h"
#include "quillgrid/cells/OwnerLink.h"

#include <cstdint>

namespace quillgrid {

/// What cells need of their surroundings whether or not they have a control: its answers, else built-in ones.

const Locale& LocaleOf(const CellOwner* owner);
LanguageConstants LanguageOf(const CellOwner* owner);
InputSeparators SeparatorsOf(const CellOwner* owner);
CellDefaults DefaultsOf(const CellOwner* owner);
const CurrencyConverter* CurrenciesOf(const CellOwner* owner);
/// Today's day number.
std::int32_t TodayOf(const CellOwner* owner);
/// Milliseconds of a counter that never runs backwards.
std::uint64_t TickCountOf(const CellOwner* owner);

/// Keeps the control silent while it lives, and loud afterwards, whatever it was before.
class SilentScope {
public:
    explicit SilentScope(OwnerLinkReference link);
    ~SilentScope();
    SilentScope(const SilentScope&) = delete;
    SilentScope& operator=(const SilentScope&) = delete;

private:
    OwnerLinkReference link_; // the control may go meanwhile
};

/// While it lives, a cell stands in for the control's current one, whether or not it has a row: what acts on
/// the current cell, such as property sheets and `Cell::DefineFromDataDictionary`, acts on it. Rows, edit box
/// and focus stay as they are and no event comes.
class CurrentCellScope {
public:
    explicit CurrentCellScope(Cell& cell);
    CurrentCellScope(OwnerLinkReference link, Cell& cell);
    ~CurrentCellScope();
    CurrentCellScope(const CurrentCellScope&) = delete;
    CurrentCellScope& operator=(const CurrentCellScope&) = delete;

private:
    OwnerLinkReference link_;
    Cell* before_ = nullptr;
};

} // namespace quillgrid
