#include "apps/record_editor/SqliteSchemaReader.h"

#include "apps/record_editor/CheckExpression.h"
#include "apps/record_editor/ColumnType.h"
#include "apps/record_editor/Database.h"

#include <QHash>
#include <QMap>

namespace quillgrid::editor {
namespace {

QString QuotedTable(const QString& name) {
    return QStringLiteral("main.") + SqlDialect::Quote(name);
}

// An INTEGER PRIMARY KEY is the row's own number; with any other spelling SQLite numbers nothing.
void MarkAutoNumber(TableSchema& schema, bool withoutRowid) {
    if (withoutRowid || schema.PrimaryKey.size() != 1) return;
    Column& column = schema.Columns[schema.IndexOf(schema.PrimaryKey[0])];
    column.AutoNumber = column.Types.value(0).compare(u"INTEGER", Qt::CaseInsensitive) == 0;
}

void AddColumn(TableSchema& schema, QMap<int, QString>& key, const QSqlQuery& row) {
    const int hidden = row.value(5).toInt();
    if (hidden == 1) return;
    Column column;
    column.Name = row.value(0).toString();
    column.Types << row.value(1).toString();
    column.MaxLength = ColumnType(column.Types[0]).TextLength();
    column.NotNull = row.value(2).toBool();
    if (!row.isNull(3)) column.Default = row.value(3).toString();
    column.Generated = hidden != 0;
    if (const int place = row.value(4).toInt(); place > 0) key[place] = column.Name;
    schema.Columns << column;
}

} // namespace

Outcome<QList<TableName>> SqliteSchemaReader::Tables() {
    auto rows = database_.Run(
        QStringLiteral("SELECT name, type = 'view' FROM sqlite_master WHERE type IN ('table', 'view') AND "
                       "name NOT LIKE 'sqlite\\_%' ESCAPE '\\' ORDER BY 2, name COLLATE NOCASE"));
    if (!rows) return rows.Reason();
    QList<TableName> tables;
    while (rows->next()) {
        const QString name = rows->value(0).toString();
        tables << TableName{name, QuotedTable(name), rows->value(1).toBool()};
    }
    if (rows->lastError().isValid()) return Failure{Database::Explain(rows->lastError())};
    return tables;
}

Outcome<TableSchema> SqliteSchemaReader::Read(const TableName& table) {
    TableSchema schema;
    schema.Name = table;
    for (const auto step : {&SqliteSchemaReader::ReadColumns, &SqliteSchemaReader::ReadReferences,
                            &SqliteSchemaReader::ReadChecks}) {
        if (const auto done = (this->*step)(schema); !done) return done.Reason();
    }
    return schema;
}

Outcome<Done> SqliteSchemaReader::ReadColumns(TableSchema& schema) {
    auto rows = database_.Run(
        QStringLiteral(
            "SELECT name, type, \"notnull\", dflt_value, pk, hidden FROM pragma_table_xinfo(?, 'main')"),
        {schema.Name.Shown});
    if (!rows) return rows.Reason();
    QMap<int, QString> key;
    while (rows->next())
        AddColumn(schema, key, *rows);
    if (schema.Columns.isEmpty()) {
        return Failure{QStringLiteral("The table “%1” has no columns to show.").arg(schema.Name.Shown)};
    }
    schema.PrimaryKey = key.values();
    auto kind =
        database_.Run(QStringLiteral("SELECT wr FROM pragma_table_list WHERE schema = 'main' AND name = ?"),
                      {schema.Name.Shown});
    MarkAutoNumber(schema, kind && kind->next() && kind->value(0).toBool());
    return Done{};
}

Outcome<Done> SqliteSchemaReader::ReadReferences(TableSchema& schema) {
    auto rows = database_.Run(
        QStringLiteral("SELECT id, \"table\", \"from\", \"to\" FROM pragma_foreign_key_list(?, 'main')"),
        {schema.Name.Shown});
    if (!rows) return rows.Reason();
    struct Reference {
        QString Table, From, To;
        int Columns = 0;
    };
    QMap<int, Reference> references;
    while (rows->next()) {
        Reference& reference = references[rows->value(0).toInt()];
        reference.Table = rows->value(1).toString();
        reference.From = rows->value(2).toString();
        reference.To = rows->value(3).toString();
        ++reference.Columns;
    }
    for (const Reference& reference : references) {
        // A key of several columns cannot be chosen in one cell.
        if (reference.Columns != 1) continue;
        for (Column& column : schema.Columns) {
            if (column.Name.compare(reference.From, Qt::CaseInsensitive) != 0) continue;
            // A reference to a table that is not there only matters once a row is saved.
            if (auto key = DescribeReference(reference.Table, reference.To)) column.Reference = *key;
        }
    }
    return Done{};
}

Outcome<ForeignKey> SqliteSchemaReader::DescribeReference(const QString& table, const QString& column) {
    auto rows =
        database_.Run(QStringLiteral("SELECT name, type, pk FROM pragma_table_info(?, 'main')"), {table});
    if (!rows) return rows.Reason();
    ForeignKey key{QuotedTable(table), table, column, {}};
    QStringList texts;
    while (rows->next()) {
        const QString name = rows->value(0).toString();
        if (key.Column.isEmpty() && rows->value(2).toInt() == 1) key.Column = name;
        if (ColumnType(rows->value(1).toString()).IsText()) texts << name;
    }
    texts.removeAll(key.Column);
    key.TextColumn = texts.value(0);
    if (key.Column.isEmpty()) return Failure{QStringLiteral("There is no table “%1”.").arg(table)};
    return key;
}

Outcome<Done> SqliteSchemaReader::ReadChecks(TableSchema& schema) {
    auto rows =
        database_.Run(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'table' AND name = ?"),
                      {schema.Name.Shown});
    if (!rows) return rows.Reason();
    if (!rows->next()) return Done{};
    for (const CheckFact& fact : FactsOfChecks(rows->value(0).toString())) {
        for (Column& column : schema.Columns) {
            if (column.Name.compare(fact.Column, Qt::CaseInsensitive) == 0) column.Checks << fact;
        }
    }
    return Done{};
}

} // namespace quillgrid::editor
