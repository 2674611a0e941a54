#include "apps/record_editor/FieldValue.h"

#include <QLocale>

namespace quillgrid::editor {

FieldValue FieldValue::FromQuery(const QString& kind, const QVariant& value) {
    if (kind == u"null") return {};
    if (kind == u"integer") return {Storage::Integer, value, value.toString()};
    if (kind == u"real") {
        return {Storage::Real, value, QString::number(value.toDouble(), 'g', QLocale::FloatingPointShortest)};
    }
    if (kind == u"long") return {Storage::LongText, value, value.toString() + QStringLiteral(" …")};
    if (kind == u"blob") return {Storage::Binary, value, QStringLiteral("(%1 bytes)").arg(value.toString())};
    return {Storage::Text, value, value.toString()};
}

} // namespace quillgrid::editor
