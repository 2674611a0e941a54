#pragma once

#include "apps/record_editor/CheckFact.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace quillgrid::editor {

/// A table or view as the user names it and as SQL names it.
struct TableName {
    QString Shown;  ///< with its schema only where that is not searched by itself
    QString Quoted; ///< ready for a statement
    bool IsView = false;
};

/// A reference of one column to a row of another table.
struct ForeignKey {
    QString Table; ///< as SQL names it, quoted
    QString ShownTable;
    QString Column;     ///< the referenced column, bare
    QString TextColumn; ///< the first column of that table with text, bare; "" when there is none
};

struct Column {
    QString Name;
    QStringList Types; ///< declared types, the most telling first: a domain, then its base type
    bool NotNull = false;
    bool Generated = false;  ///< computed by the database, never written
    bool AutoNumber = false; ///< the database numbers new rows itself
    bool Binary = false;
    bool Money = false;               ///< PostgreSQL's type "money"
    int MaxLength = -1;               ///< declared characters, -1 without limit
    std::optional<QString> Default{}; ///< an SQL expression
    std::optional<ForeignKey> Reference{};
    QList<CheckFact> Checks;
};

struct TableSchema {
    TableName Name;
    QList<Column> Columns;
    QStringList PrimaryKey; ///< column names in the key's order

    bool HasKey() const { return !PrimaryKey.isEmpty(); }
    const Column* Find(const QString& name) const;
    qsizetype IndexOf(const QString& name) const;
};

} // namespace quillgrid::editor
