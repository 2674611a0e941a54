#pragma once

#include "apps/record_editor/ColumnRule.h"
#include "apps/record_editor/Outcome.h"
#include "apps/record_editor/TableSchema.h"

namespace quillgrid::editor {

class Database;

/// The rules of all columns of a table: their declarations, the entries of the tables that they refer to, and
/// the data dictionary over both.
Outcome<QList<ColumnRule>> ReadRules(const Database& database, const TableSchema& schema,
                                     LanguageConstants language, const QString& languageCode);

} // namespace quillgrid::editor
