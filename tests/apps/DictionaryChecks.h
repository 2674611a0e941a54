#pragma once

#include "apps/record_editor/RecordForm.h"

namespace quillgrid::editor {

/// A table "t" and a dictionary that says something of every property that a dictionary can set, in SQL that
/// SQLite and PostgreSQL both read; ";" at the end of a line separates the statements.
QString DictionaryStatements();

/// Expects the form of that table to be as its dictionary says.
void ExpectAsTheDictionarySays(Quillgrid& grid);

} // namespace quillgrid::editor
