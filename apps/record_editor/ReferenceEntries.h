#pragma once

#include "apps/record_editor/ColumnRule.h"
#include "apps/record_editor/Outcome.h"
#include "apps/record_editor/TableSchema.h"

namespace quillgrid::editor {

class Database;

/// The rows that a foreign key may point to, as entries "Text (key)" in the order of their texts. Empty when
/// there are more than fit a list: a list that hides valid choices would be worse than typing the key.
Outcome<QList<Choice>> ReadReferenceEntries(const Database& database, const ForeignKey& reference,
                                            qsizetype limit = 10'000);

} // namespace quillgrid::editor
