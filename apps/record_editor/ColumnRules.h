#pragma once

#include "apps/record_editor/ColumnRule.h"
#include "apps/record_editor/TableSchema.h"

#include "quillgrid/base/Constants.h"

namespace quillgrid::editor {

/// "founded_on" becomes "Founded on", "countryId" "Country id".
QString CaptionFromName(const QString& columnName);

/// The bound that a constant of SQL means for a kind of column (`text` as SQL writes it, bare); Null when it
/// means none.
Variant BoundFromText(const QString& text, ValueKind kind);

/// Where NULL is allowed, yes and no become entries of a list: a cell that knows only the two would show a
/// missing answer as "no".
void AllowNoAnswer(ColumnRule& rule, LanguageConstants language);

/// What the declaration of a column says about its cell. The entries of a referenced table are still missing.
ColumnRule RuleForColumn(const Column& column, const TableSchema& schema, LanguageConstants language);

} // namespace quillgrid::editor
