#pragma once

#include "apps/record_editor/Database.h"
#include "apps/record_editor/SchemaReader.h"
#include "apps/record_editor/TableSchema.h"

#include <QString>
#include <QTemporaryDir>

#include <memory>
#include <ostream>

/// GoogleTest shows texts as texts.
inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace quillgrid::editor {

/// A SQLite file of its own for one test, with a second connection that looks from outside.
class TestDatabase {
public:
    /// Several statements, separated by ";" at the ends of lines.
    explicit TestDatabase(const QString& statements);
    ~TestDatabase();

    QString File() const { return folder_.filePath(QStringLiteral("test.sqlite")); }
    std::unique_ptr<Database> Open() const;
    /// Runs a statement from outside; fails the test when the database refuses.
    void Execute(const QString& sql) const;
    /// The first column of the first row; "NULL" and "(no row)" where there is none.
    QString Ask(const QString& sql) const;

private:
    QTemporaryDir folder_;
    QString connection_;
};

TableName Table(const Database& database, const QString& name);
TableSchema Schema(const Database& database, const QString& name);

} // namespace quillgrid::editor
