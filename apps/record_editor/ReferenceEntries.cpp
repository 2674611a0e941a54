#include "apps/record_editor/ReferenceEntries.h"

#include "apps/record_editor/Database.h"

#include <QCollator>

#include <algorithm>

namespace quillgrid::editor {
namespace {

QString SelectEntries(const SqlDialect& dialect, const ForeignKey& reference, qsizetype limit) {
    const QString key = dialect.ColumnName(reference.Column);
    const QString text = reference.TextColumn.isEmpty() ? key : dialect.ColumnName(reference.TextColumn);
    return u"SELECT " + dialect.KindOf(key, false) + u", " + dialect.ValueOf(key, false, false) + u", " +
           dialect.ValueOf(text, false, false) + u" FROM " + reference.Table + u" WHERE " + key +
           u" IS NOT NULL LIMIT " + QString::number(limit + 1);
}

QString EntryText(const FieldValue& key, const QString& text) {
    if (text.isEmpty() || text == key.Text) return key.Text;
    return text.simplified() + u" (" + key.Text + u')';
}

} // namespace

Outcome<QList<Choice>> ReadReferenceEntries(const Database& database, const ForeignKey& reference,
                                            qsizetype limit) {
    auto rows = database.Run(SelectEntries(database.Dialect(), reference, limit));
    if (!rows) return rows.Reason();
    QList<Choice> entries;
    while (rows->next()) {
        const FieldValue key = FieldValue::FromQuery(rows->value(0).toString(), rows->value(1));
        entries << Choice{key, EntryText(key, rows->value(2).toString())};
    }
    if (rows->lastError().isValid()) return Failure{Database::Explain(rows->lastError())};
    if (entries.size() > limit) return QList<Choice>();
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::sort(entries.begin(), entries.end(), [&](const Choice& a, const Choice& b) {
        const int order = collator.compare(a.Text, b.Text);
        return order != 0 ? order < 0 : a.Value.Text < b.Value.Text;
    });
    return entries;
}

} // namespace quillgrid::editor
