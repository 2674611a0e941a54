#include "apps/record_editor/RecordStore.h"

#include <numeric>

namespace quillgrid::editor {
namespace {

QString ChangedMessage(const Column& column, const FieldValue& now, bool secret) {
    const QString holds = QStringLiteral("; it now holds “%1”").arg(now.Text.left(60));
    return QStringLiteral("Someone else changed “%1” meanwhile%2. Revert to load the record again.")
        .arg(column.Name, secret ? QString() : holds);
}

QString Reason(const QSqlQuery& rows) {
    return rows.lastError().isValid() ? Database::Explain(rows.lastError()) : RecordStore::GoneMessage();
}

QString Placeholders(qsizetype count) {
    return QStringList(count, QStringLiteral("?")).join(u", ");
}

} // namespace

QString RecordStore::GoneMessage() {
    return QStringLiteral("The record was deleted by someone else, or its key was changed.");
}

bool RecordStore::CanWrite() const {
    return schema_.HasKey() && !schema_.Name.IsView && !database_.IsReadOnly();
}

Outcome<Done> RecordStore::Open() {
    keys_.clear();
    count_ = 0;
    return schema_.HasKey() ? ReadKeys() : CountRows();
}

QString RecordStore::KeyColumns() const {
    QStringList columns;
    for (const QString& name : schema_.PrimaryKey) {
        const QString quoted = database_.Dialect().ColumnName(name);
        columns << (database_.Dialect().IsPostgres() ? quoted + u"::text" : quoted);
    }
    return columns.join(u", ");
}

QString RecordStore::KeyMatches() const {
    QStringList matches;
    for (const QString& name : schema_.PrimaryKey)
        matches << database_.Dialect().Equals(database_.Dialect().ColumnName(name));
    return matches.join(u" AND ");
}

QVariantList RecordStore::KeyOf(const QSqlQuery& row) const {
    QVariantList key;
    for (int i = 0; i < schema_.PrimaryKey.size(); ++i) {
        key << (row.isNull(i) ? QVariant(QMetaType::fromType<QString>()) : row.value(i));
    }
    return key;
}

Outcome<Done> RecordStore::ReadKeys() {
    QStringList order;
    for (const QString& name : schema_.PrimaryKey)
        order << database_.Dialect().ColumnName(name);
    auto rows = database_.Run(u"SELECT " + KeyColumns() + u" FROM " + schema_.Name.Quoted + u" ORDER BY " +
                              order.join(u", ") + u" LIMIT " + QString::number(mostRecords_ + 1));
    if (!rows) return rows.Reason();
    while (rows->next())
        keys_ << KeyOf(*rows);
    if (rows->lastError().isValid()) return Failure{Database::Explain(rows->lastError())};
    truncated_ = keys_.size() > mostRecords_;
    if (truncated_) keys_.removeLast();
    count_ = keys_.size();
    return Done{};
}

Outcome<Done> RecordStore::CountRows() {
    auto rows = database_.Run(u"SELECT count(*) FROM " + schema_.Name.Quoted);
    if (!rows) return rows.Reason();
    if (!rows->next()) return Failure{Database::Explain(rows->lastError())};
    count_ = rows->value(0).toLongLong();
    return Done{};
}

QString RecordStore::SelectColumns(const QList<qsizetype>& columns) const {
    const SqlDialect& dialect = database_.Dialect();
    QStringList expressions;
    for (const qsizetype index : columns) {
        const Column& column = schema_.Columns[index];
        const QString name = dialect.ColumnName(column.Name);
        expressions << dialect.KindOf(name, column.Binary)
                    << dialect.ValueOf(name, column.Binary, column.Money);
    }
    return u"SELECT " + expressions.join(u", ") + u" FROM " + schema_.Name.Quoted;
}

Outcome<QList<FieldValue>> RecordStore::Read(qsizetype position) const {
    if (position < 0 || position >= count_) return Failure{QStringLiteral("There is no such record.")};
    QList<qsizetype> columns(schema_.Columns.size());
    std::iota(columns.begin(), columns.end(), 0);
    const QString select = SelectColumns(columns);
    auto rows = schema_.HasKey() ? database_.Run(select + u" WHERE " + KeyMatches(), keys_[position])
                                 : database_.Run(select + u" LIMIT 1 OFFSET " + QString::number(position));
    if (!rows) return rows.Reason();
    if (!rows->next()) {
        return Failure{Reason(*rows)};
    }
    QList<FieldValue> values;
    for (int i = 0; i < columns.size(); ++i) {
        values << FieldValue::FromQuery(rows->value(2 * i).toString(), rows->value(2 * i + 1));
    }
    return values;
}

Outcome<Done> RecordStore::CheckUnchanged(qsizetype position, const QList<FieldChange>& changes) const {
    QList<qsizetype> columns;
    for (const FieldChange& change : changes)
        columns << change.Column;
    auto rows = database_.Run(
        SelectColumns(columns) + u" WHERE " + KeyMatches() + database_.Dialect().Locking(), keys_[position]);
    if (!rows) return rows.Reason();
    if (!rows->next()) {
        return Failure{Reason(*rows)};
    }
    for (int i = 0; i < changes.size(); ++i) {
        const auto now = FieldValue::FromQuery(rows->value(2 * i).toString(), rows->value(2 * i + 1));
        if (now == changes[i].Loaded) continue;
        return Failure{ChangedMessage(schema_.Columns[columns[i]], now, changes[i].Secret)};
    }
    return Done{};
}

Outcome<QVariantList> RecordStore::WriteOne(const QString& sql, const QVariantList& values) {
    auto rows = database_.Run(sql + u" RETURNING " + KeyColumns(), values);
    if (!rows) return rows.Reason();
    if (!rows->next()) {
        return Failure{rows->lastError().isValid() ? Database::Explain(rows->lastError())
                                                   : QStringLiteral("The database did not take the record.")};
    }
    const QVariantList key = KeyOf(*rows);
    // Several rows would mean that the key does not tell rows apart: nothing may be kept then.
    if (rows->next()) return Failure{QStringLiteral("More than one record has this key; nothing was saved.")};
    return key;
}

Outcome<QVariantList> RecordStore::Committed(const QString& sql, const QVariantList& values,
                                             Transaction& transaction) {
    auto key = WriteOne(sql, values);
    if (!key) return key;
    if (const auto committed = transaction.Commit(); !committed) return committed.Reason();
    return key;
}

Outcome<Done> RecordStore::Update(qsizetype position, const QList<FieldChange>& changes) {
    if (changes.isEmpty()) return Done{};
    if (!CanWrite()) return Failure{QStringLiteral("This table is open for reading only.")};
    Transaction transaction(database_);
    if (const auto begun = transaction.Begin(); !begun) return begun;
    if (const auto same = CheckUnchanged(position, changes); !same) return same;
    QStringList assignments;
    QVariantList values;
    for (const FieldChange& change : changes) {
        assignments << database_.Dialect().ColumnName(schema_.Columns[change.Column].Name) + u" = ?";
        values << change.Value;
    }
    const auto key = Committed(u"UPDATE " + schema_.Name.Quoted + u" SET " + assignments.join(u", ") +
                                   u" WHERE " + KeyMatches(),
                               values + keys_[position], transaction);
    if (!key) return key.Reason();
    keys_[position] = *key;
    return Done{};
}

Outcome<qsizetype> RecordStore::Insert(const QList<FieldChange>& changes) {
    if (!CanWrite()) return Failure{QStringLiteral("This table is open for reading only.")};
    Transaction transaction(database_);
    if (const auto begun = transaction.Begin(); !begun) return begun.Reason();
    QStringList names;
    QVariantList values;
    for (const FieldChange& change : changes) {
        names << database_.Dialect().ColumnName(schema_.Columns[change.Column].Name);
        values << change.Value;
    }
    const QString columns =
        names.isEmpty() ? QStringLiteral(" DEFAULT VALUES")
                        : u" (" + names.join(u", ") + u") VALUES (" + Placeholders(names.size()) + u')';
    const auto key = Committed(u"INSERT INTO " + schema_.Name.Quoted + columns, values, transaction);
    if (!key) return key.Reason();
    keys_ << *key;
    count_ = keys_.size();
    return count_ - 1;
}

} // namespace quillgrid::editor
