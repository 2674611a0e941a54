#pragma once

#include "apps/record_editor/Outcome.h"
#include "apps/record_editor/TableSchema.h"

#include <QList>

#include <memory>

namespace quillgrid::editor {

class Database;

/// What a database tells about its tables.
class SchemaReader {
public:
    virtual ~SchemaReader() = default;

    /// Tables and views that a user would call theirs, tables first, by name.
    virtual Outcome<QList<TableName>> Tables() = 0;
    virtual Outcome<TableSchema> Read(const TableName& table) = 0;

    /// The reader for the kind of database; it must not outlive it.
    static std::unique_ptr<SchemaReader> For(const Database& database);
};

} // namespace quillgrid::editor
