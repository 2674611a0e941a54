#include "apps/record_editor/SqlDialect.h"

namespace quillgrid::editor {
namespace {

/// SQLite's own functions see such a text end at the zero: half of it would be shown as the whole.
QString HoldsZero(const QString& column) {
    return u"(typeof(" + column + u") = 'text' AND instr(" + column + u", char(0)) > 0)";
}

} // namespace

QString SqlDialect::Quote(const QString& identifier) {
    QString inner = identifier;
    inner.replace(u'"', QLatin1String("\"\""));
    return u'"' + inner + u'"';
}

QString SqlDialect::ColumnName(const QString& name) const {
    if (postgres_) return Quote(name);
    QString inner = name;
    inner.replace(u'`', QLatin1String("``"));
    return u'`' + inner + u'`';
}

// Names are joined in by concatenation: QString::arg would replace a "%1" inside a quoted name.
QString SqlDialect::KindOf(const QString& column, bool binary) const {
    const QString limit = QString::number(LongestText);
    if (postgres_) {
        const QString present =
            binary ? QStringLiteral("'blob'")
                   : u"CASE WHEN length(" + column + u"::text) > " + limit + u" THEN 'long' ELSE 'text' END";
        return u"CASE WHEN " + column + u" IS NULL THEN 'null' ELSE " + present + u" END";
    }
    return u"CASE WHEN " + HoldsZero(column) + u" THEN 'blob' WHEN typeof(" + column +
           u") = 'text' AND length(" + column + u") > " + limit + u" THEN 'long' ELSE typeof(" + column +
           u") END";
}

QString SqlDialect::ValueOf(const QString& column, bool binary, bool money) const {
    const QString limit = QString::number(LongestText);
    if (postgres_) {
        if (binary) return u"octet_length(" + column + u")::text";
        // The type "money" writes itself in the server's locale.
        const QString text = column + (money ? u"::numeric::text" : u"::text");
        return u"left(" + text + u", " + limit + u")";
    }
    return u"CASE WHEN typeof(" + column + u") = 'blob' OR " + HoldsZero(column) + u" THEN length(CAST(" +
           column + u" AS BLOB)) WHEN typeof(" + column + u") = 'text' THEN substr(" + column + u", 1, " +
           limit + u") ELSE " + column + u" END";
}

QString SqlDialect::Equals(const QString& column) const {
    return column + (postgres_ ? u" = ?" : u" IS ?");
}

QString SqlDialect::Locking() const {
    return postgres_ ? QStringLiteral(" FOR UPDATE") : QString();
}

} // namespace quillgrid::editor
