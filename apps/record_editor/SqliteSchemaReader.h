#pragma once

#include "apps/record_editor/SchemaReader.h"

namespace quillgrid::editor {

class SqliteSchemaReader : public SchemaReader {
public:
    explicit SqliteSchemaReader(const Database& database) : database_(database) {}

    Outcome<QList<TableName>> Tables() override;
    Outcome<TableSchema> Read(const TableName& table) override;

private:
    Outcome<Done> ReadColumns(TableSchema& schema);
    Outcome<Done> ReadReferences(TableSchema& schema);
    Outcome<Done> ReadChecks(TableSchema& schema);
    Outcome<ForeignKey> DescribeReference(const QString& table, const QString& column);

    const Database& database_;
};

} // namespace quillgrid::editor
