#pragma once

#include "apps/record_editor/DatabaseAddress.h"
#include "apps/record_editor/Outcome.h"
#include "apps/record_editor/SqlDialect.h"

#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QVariantList>

#include <memory>

namespace quillgrid::editor {

/// An open database. A file is never created: a missing one is a failure.
class Database {
public:
    static Outcome<std::unique_ptr<Database>> Open(const DatabaseAddress& address);
    ~Database();
    Database(const Database&) = delete;
    Database& operator=(const Database&) = delete;

    const SqlDialect& Dialect() const { return dialect_; }
    /// Whether the file may only be read; servers decide at each statement.
    bool IsReadOnly() const { return readOnly_; }
    QString Description() const { return description_; }

    /// Runs one statement with its values bound in order to the "?" in it.
    Outcome<QSqlQuery> Run(const QString& sql, const QVariantList& values = {}) const;

    Outcome<Done> Begin();
    Outcome<Done> Commit();
    void Rollback();

    /// What the database said, with a hint where its words alone do not help.
    static QString Explain(const QSqlError& error);

private:
    Database(const QString& connection, const DatabaseAddress& address, bool readOnly);

    Outcome<Done> OpenFile(const DatabaseAddress& address);
    Outcome<Done> OpenServer(const DatabaseAddress& address);
    Outcome<Done> CheckFile(const QString& file) const;
    QSqlDatabase Connection() const { return QSqlDatabase::database(connection_, false); }

    QString connection_;
    QString description_;
    SqlDialect dialect_;
    bool readOnly_;
};

/// Takes a transaction back unless it was committed.
class Transaction {
public:
    explicit Transaction(Database& database) : database_(database) {}
    ~Transaction() {
        if (open_) database_.Rollback();
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    Outcome<Done> Begin();
    Outcome<Done> Commit();

private:
    Database& database_;
    bool open_ = false;
};

} // namespace quillgrid::editor
