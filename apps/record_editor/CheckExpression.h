#pragma once

#include "apps/record_editor/CheckFact.h"

#include <QList>
#include <QString>

namespace quillgrid::editor {

/// What the CHECK clauses in a piece of SQL (a CREATE TABLE statement or a single constraint) demand of
/// single columns: comparisons with constants, BETWEEN, IN, lengths, joined by AND; "column IS NULL OR ..."
/// and "column = a OR column = b". Whatever else a clause says is left to the database: no fact comes of it.
QList<CheckFact> FactsOfChecks(const QString& sql);

} // namespace quillgrid::editor
