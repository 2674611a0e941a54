#pragma once

#include <QString>

namespace quillgrid::editor {

/// Where the two databases want different words.
class SqlDialect {
public:
    explicit SqlDialect(bool postgres) : postgres_(postgres) {}

    bool IsPostgres() const { return postgres_; }

    /// An identifier in double quotes, whatever characters it has.
    static QString Quote(const QString& identifier);
    /// A column's name, an error where the table has no such column. SQLite takes an unknown name in double
    /// quotes for a text, and would read that text out of every record.
    QString ColumnName(const QString& name) const;
    /// How a value is stored: 'null', 'integer', 'real', 'text', 'long' (a text too long to show whole),
    /// 'blob' (also a text with a zero character inside).
    QString KindOf(const QString& column, bool binary) const;
    /// The value itself without loss; the beginning of a long text, the length of a blob. PostgreSQL writes
    /// everything as text, so that no driver rounds a number or loses a date on the way.
    QString ValueOf(const QString& column, bool binary, bool money) const;
    /// "column equals the next bound value", true for two NULLs.
    QString Equals(const QString& column) const;
    /// Ends a SELECT whose rows are about to be changed.
    QString Locking() const;

    /// More characters than this are shown as a beginning only and cannot be edited in a cell.
    static constexpr int LongestText = 100'000;

private:
    bool postgres_;
};

} // namespace quillgrid::editor
