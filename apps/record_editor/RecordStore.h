#pragma once

#include "apps/record_editor/Database.h"
#include "apps/record_editor/FieldValue.h"
#include "apps/record_editor/Outcome.h"
#include "apps/record_editor/TableSchema.h"

#include <QList>
#include <QVariantList>

namespace quillgrid::editor {

/// One column to write.
struct FieldChange {
    qsizetype Column = 0; ///< position in the schema
    QVariant Value;       ///< to bind
    FieldValue Loaded{};  ///< what was read, to see whether someone else changed it meanwhile
    bool Secret = false;  ///< what the database holds is shown to nobody
};

/// The rows of one table. Only their keys are held; a row is read when it is asked for.
class RecordStore {
public:
    /// Keys beyond this many are not read: the rows behind them cannot be reached.
    static constexpr qsizetype MostRecords = 200'000;

    RecordStore(Database& database, TableSchema schema, qsizetype mostRecords = MostRecords)
        : database_(database), schema_(std::move(schema)), mostRecords_(mostRecords) {}

    /// Reads the keys, in the order of the primary key; without one only the number of rows.
    Outcome<Done> Open();

    const TableSchema& Schema() const { return schema_; }
    qsizetype Count() const { return count_; }
    /// Whether the table has more rows than were read.
    bool IsTruncated() const { return truncated_; }
    bool CanWrite() const;

    /// What a read says where the row of the key is no longer there.
    static QString GoneMessage();

    /// The row at a position 0 to Count() - 1, in the order of the schema's columns.
    Outcome<QList<FieldValue>> Read(qsizetype position) const;

    /// Writes the given columns and nothing else, in one transaction. Fails, leaving the database as it was,
    /// when the row is gone, when one of the columns no longer holds what was loaded, or when the database
    /// refuses.
    Outcome<Done> Update(qsizetype position, const QList<FieldChange>& changes);
    /// Adds a row with the given columns; the others get what the database gives them. Its position on
    /// success.
    Outcome<qsizetype> Insert(const QList<FieldChange>& changes);

private:
    Outcome<Done> ReadKeys();
    Outcome<Done> CountRows();
    QString KeyColumns() const;
    QString KeyMatches() const;
    QString SelectColumns(const QList<qsizetype>& columns) const;
    QVariantList KeyOf(const QSqlQuery& row) const;
    Outcome<Done> CheckUnchanged(qsizetype position, const QList<FieldChange>& changes) const;
    Outcome<QVariantList> WriteOne(const QString& sql, const QVariantList& values);
    Outcome<QVariantList> Committed(const QString& sql, const QVariantList& values, Transaction& transaction);

    Database& database_;
    TableSchema schema_;
    qsizetype mostRecords_;
    QList<QVariantList> keys_;
    qsizetype count_ = 0;
    bool truncated_ = false;
};

} // namespace quillgrid::editor
