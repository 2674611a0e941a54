#include "TestDatabase.h"

#include <QUuid>

#include <gtest/gtest.h>

namespace quillgrid::editor {

TestDatabase::TestDatabase(const QString& statements) : connection_(QUuid::createUuid().toString()) {
    auto outside = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), connection_);
    outside.setDatabaseName(File());
    EXPECT_TRUE(outside.open());
    for (const QString& statement : statements.split(QStringLiteral(";\n"), Qt::SkipEmptyParts)) {
        if (!statement.trimmed().isEmpty()) Execute(statement);
    }
}

TestDatabase::~TestDatabase() {
    QSqlDatabase::removeDatabase(connection_);
}

std::unique_ptr<Database> TestDatabase::Open() const {
    DatabaseAddress address;
    address.File = File();
    auto opened = Database::Open(address);
    EXPECT_TRUE(opened) << opened.Message().toStdString();
    return std::move(*opened);
}

void TestDatabase::Execute(const QString& sql) const {
    QSqlQuery query(QSqlDatabase::database(connection_));
    EXPECT_TRUE(query.exec(sql)) << sql.toStdString() << ": " << query.lastError().text().toStdString();
}

QString TestDatabase::Ask(const QString& sql) const {
    QSqlQuery query(QSqlDatabase::database(connection_));
    EXPECT_TRUE(query.exec(sql)) << query.lastError().text().toStdString();
    if (!query.next()) return QStringLiteral("(no row)");
    return query.isNull(0) ? QStringLiteral("NULL") : query.value(0).toString();
}

TableName Table(const Database& database, const QString& name) {
    const auto tables = SchemaReader::For(database)->Tables();
    EXPECT_TRUE(tables) << tables.Message().toStdString();
    for (const TableName& table : *tables) {
        if (table.Shown == name) return table;
    }
    ADD_FAILURE() << "no table " << name.toStdString();
    return {};
}

TableSchema Schema(const Database& database, const QString& name) {
    auto schema = SchemaReader::For(database)->Read(Table(database, name));
    EXPECT_TRUE(schema) << schema.Message().toStdString();
    return schema ? *schema : TableSchema();
}

} // namespace quillgrid::editor
