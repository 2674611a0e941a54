#pragma once

#include "apps/record_editor/SchemaReader.h"

#include <QSqlQuery>

namespace quillgrid::editor {

class PostgresSchemaReader : public SchemaReader {
public:
    explicit PostgresSchemaReader(const Database& database) : database_(database) {}

    Outcome<QList<TableName>> Tables() override;
    Outcome<TableSchema> Read(const TableName& table) override;

private:
    Outcome<Done> ReadColumns(TableSchema& schema);
    Outcome<Column> ReadColumn(const QSqlQuery& row);
    Outcome<Done> ReadTypeRules(const QString& type, Column& column);
    Outcome<Done> ReadPrimaryKey(TableSchema& schema);
    Outcome<Done> ReadReferences(TableSchema& schema);
    Outcome<Done> ReadChecks(TableSchema& schema);

    const Database& database_;
};

} // namespace quillgrid::editor
