#include "apps/record_editor/PostgresSchemaReader.h"

#include "apps/record_editor/CheckExpression.h"
#include "apps/record_editor/ColumnType.h"
#include "apps/record_editor/Database.h"

namespace quillgrid::editor {
namespace {

const QString TablesSql = QStringLiteral(R"(
SELECT n.nspname, c.relname, pg_table_is_visible(c.oid), c.relkind IN ('v', 'm')
FROM pg_catalog.pg_class c JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace
WHERE c.relkind IN ('r', 'p', 'v', 'm', 'f') AND n.nspname NOT IN ('pg_catalog', 'information_schema')
  AND n.nspname NOT LIKE 'pg\_%' AND has_table_privilege(c.oid, 'SELECT')
ORDER BY 4, 3 DESC, 1, 2)");

// typname is the bare name of a domain or an enumeration, format_type the type with its sizes.
const QString ColumnsSql = QStringLiteral(R"(
SELECT a.attname, format_type(a.atttypid, a.atttypmod), t.typtype = 'd', t.typname,
       format_type(t.typbasetype, t.typtypmod), a.attnotnull OR t.typnotnull, a.attgenerated <> '',
       a.attidentity <> '' OR coalesce(pg_get_expr(d.adbin, d.adrelid), '') LIKE 'nextval(%',
       pg_get_expr(d.adbin, d.adrelid), t.oid::text
FROM pg_catalog.pg_attribute a JOIN pg_catalog.pg_type t ON t.oid = a.atttypid
     LEFT JOIN pg_catalog.pg_attrdef d ON d.adrelid = a.attrelid AND d.adnum = a.attnum
WHERE a.attrelid = ?::regclass AND a.attnum > 0 AND NOT a.attisdropped ORDER BY a.attnum)");

const QString DomainChecksSql =
    QStringLiteral("SELECT pg_get_constraintdef(oid) FROM pg_catalog.pg_constraint WHERE contypid = ?::oid "
                   "AND contype = 'c'");

const QString EnumerationSql = QStringLiteral(
    "SELECT enumlabel FROM pg_catalog.pg_enum WHERE enumtypid = ?::oid ORDER BY enumsortorder");

const QString PrimaryKeySql = QStringLiteral(R"(
SELECT a.attname
FROM pg_catalog.pg_index i CROSS JOIN unnest(i.indkey) WITH ORDINALITY AS k(number, place)
     JOIN pg_catalog.pg_attribute a ON a.attrelid = i.indrelid AND a.attnum = k.number
WHERE i.indrelid = ?::regclass AND i.indisprimary ORDER BY k.place)");

const QString ReferencesSql = QStringLiteral(R"(
SELECT a.attname, n.nspname, c.relname, f.attname,
       (SELECT x.attname FROM pg_catalog.pg_attribute x JOIN pg_catalog.pg_type y ON y.oid = x.atttypid
        WHERE x.attrelid = c.oid AND x.attnum > 0 AND NOT x.attisdropped AND x.attnum <> f.attnum
              AND y.typcategory = 'S' ORDER BY x.attnum LIMIT 1)
FROM pg_catalog.pg_constraint k
     JOIN pg_catalog.pg_attribute a ON a.attrelid = k.conrelid AND a.attnum = k.conkey[1]
     JOIN pg_catalog.pg_attribute f ON f.attrelid = k.confrelid AND f.attnum = k.confkey[1]
     JOIN pg_catalog.pg_class c ON c.oid = k.confrelid JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace
WHERE k.conrelid = ?::regclass AND k.contype = 'f' AND cardinality(k.conkey) = 1)");

const QString ChecksSql = QStringLiteral("SELECT pg_get_constraintdef(oid) FROM pg_catalog.pg_constraint "
                                         "WHERE conrelid = ?::regclass AND contype = 'c'");

QString QuotedTable(const QString& schema, const QString& name) {
    return SqlDialect::Quote(schema) + u'.' + SqlDialect::Quote(name);
}

} // namespace

Outcome<QList<TableName>> PostgresSchemaReader::Tables() {
    auto rows = database_.Run(TablesSql);
    if (!rows) return rows.Reason();
    QList<TableName> tables;
    while (rows->next()) {
        const QString schema = rows->value(0).toString();
        const QString name = rows->value(1).toString();
        const QString shown = rows->value(2).toBool() ? name : schema + u'.' + name;
        tables << TableName{shown, QuotedTable(schema, name), rows->value(3).toBool()};
    }
    return tables;
}

Outcome<TableSchema> PostgresSchemaReader::Read(const TableName& table) {
    TableSchema schema;
    schema.Name = table;
    for (const auto step : {&PostgresSchemaReader::ReadColumns, &PostgresSchemaReader::ReadPrimaryKey,
                            &PostgresSchemaReader::ReadReferences, &PostgresSchemaReader::ReadChecks}) {
        if (const auto done = (this->*step)(schema); !done) return done.Reason();
    }
    return schema;
}

Outcome<Done> PostgresSchemaReader::ReadColumns(TableSchema& schema) {
    auto rows = database_.Run(ColumnsSql, {schema.Name.Quoted});
    if (!rows) return rows.Reason();
    while (rows->next()) {
        auto column = ReadColumn(*rows);
        if (!column) return column.Reason();
        schema.Columns << *column;
    }
    if (!schema.Columns.isEmpty()) return Done{};
    return Failure{QStringLiteral("The table “%1” has no columns to show.").arg(schema.Name.Shown)};
}

Outcome<Column> PostgresSchemaReader::ReadColumn(const QSqlQuery& row) {
    Column column;
    column.Name = row.value(0).toString();
    column.Types << row.value(1).toString();
    const bool isDomain = row.value(2).toBool();
    if (isDomain) column.Types = {row.value(3).toString(), row.value(4).toString()};
    const QString base = column.Types.last();
    column.MaxLength = ColumnType(base).TextLength();
    column.NotNull = row.value(5).toBool();
    column.Generated = row.value(6).toBool();
    column.AutoNumber = row.value(7).toBool();
    if (!row.isNull(8) && !column.Generated) column.Default = row.value(8).toString();
    column.Binary = base == u"bytea";
    column.Money = base == u"money";
    if (const auto done = ReadTypeRules(row.value(9).toString(), column); !done) return done.Reason();
    return column;
}

Outcome<Done> PostgresSchemaReader::ReadTypeRules(const QString& type, Column& column) {
    auto checks = database_.Run(DomainChecksSql, {type});
    if (!checks) return checks.Reason();
    while (checks->next()) {
        for (const CheckFact& fact : FactsOfChecks(checks->value(0).toString())) {
            if (fact.Column.isEmpty()) column.Checks << fact;
        }
    }
    auto labels = database_.Run(EnumerationSql, {type});
    if (!labels) return labels.Reason();
    CheckFact choice{CheckFact::Type::OneOf, column.Name, {}};
    while (labels->next())
        choice.Values << SqlLiteral{SqlLiteral::Type::Text, labels->value(0).toString()};
    if (!choice.Values.isEmpty()) column.Checks << choice;
    return Done{};
}

Outcome<Done> PostgresSchemaReader::ReadPrimaryKey(TableSchema& schema) {
    auto rows = database_.Run(PrimaryKeySql, {schema.Name.Quoted});
    if (!rows) return rows.Reason();
    while (rows->next())
        schema.PrimaryKey << rows->value(0).toString();
    return Done{};
}

Outcome<Done> PostgresSchemaReader::ReadReferences(TableSchema& schema) {
    auto rows = database_.Run(ReferencesSql, {schema.Name.Quoted});
    if (!rows) return rows.Reason();
    while (rows->next()) {
        const auto index = schema.IndexOf(rows->value(0).toString());
        if (index < 0) continue;
        const QString name = rows->value(2).toString();
        schema.Columns[index].Reference = ForeignKey{QuotedTable(rows->value(1).toString(), name), name,
                                                     rows->value(3).toString(), rows->value(4).toString()};
    }
    return Done{};
}

Outcome<Done> PostgresSchemaReader::ReadChecks(TableSchema& schema) {
    auto rows = database_.Run(ChecksSql, {schema.Name.Quoted});
    if (!rows) return rows.Reason();
    while (rows->next()) {
        for (const CheckFact& fact : FactsOfChecks(rows->value(0).toString())) {
            if (const auto index = schema.IndexOf(fact.Column); index >= 0)
                schema.Columns[index].Checks << fact;
        }
    }
    return Done{};
}

} // namespace quillgrid::editor
