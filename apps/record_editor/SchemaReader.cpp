#include "apps/record_editor/SchemaReader.h"

#include "apps/record_editor/Database.h"
#include "apps/record_editor/PostgresSchemaReader.h"
#include "apps/record_editor/SqliteSchemaReader.h"

namespace quillgrid::editor {

std::unique_ptr<SchemaReader> SchemaReader::For(const Database& database) {
    if (database.Dialect().IsPostgres()) return std::make_unique<PostgresSchemaReader>(database);
    return std::make_unique<SqliteSchemaReader>(database);
}

} // namespace quillgrid::editor
