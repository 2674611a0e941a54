// The way between a field and the cell that shows it.
#pragma once

#include "quillgrid/cells/Cell.h"
#include "quillgrid/hosts/qt/FieldType.h"
#include "quillgrid/locale/Locale.h"

#include <QVariant>

#include <optional>

namespace quillgrid::qt {

/// What the cell holds: its value, yes or no, the data of the chosen entry; Null where nothing is chosen.
Variant CellValue(const Cell& cell);

/// Null, empty and "" are the same nothing; texts differ by case too.
bool IsSameValue(const Variant& left, const Variant& right);

/// Tells null from a value that happens to equal the default.
bool IsSameSource(const QVariant& left, const QVariant& right);

/// What to put into the cell for a field's value. Numbers and dates that a field keeps as text are read
/// without regard to any locale. Nothing for a text that is no number where the cell wants one.
std::optional<Variant> ForCell(const QVariant& source, const FieldType& type, const Cell& cell);

/// What to write into the field. What the cell cannot show is kept from `former`: the time beside a date, the
/// date beside a time, milliseconds, the time zone, the transparency of a colour. Nothing when the cell's
/// value has no exact counterpart in that type.
std::optional<QVariant> FromCell(const Cell& cell, const FieldType& type, const QVariant& former,
                                 const Locale& locale);

/// Shows a field's value, which the cell's `Undo` returns to from then on; the cell is empty when it does not
/// take the value. False unless `FromCell` would give the same value back.
bool ShowInCell(Cell& cell, const QVariant& source, const FieldType& type, const Locale& locale);

} // namespace quillgrid::qt
