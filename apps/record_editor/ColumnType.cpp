#include "apps/record_editor/ColumnType.h"

#include <QRegularExpression>

#include <array>

namespace quillgrid::editor {
namespace {

struct TypeWord {
    const char* Word;
    CellTemplateConstants Template;
    ValueKind Kind;
};

// Read from above: words that narrow a type stand before those that only say how it is stored, so that
// CURRENCY_TEXT is money and "timestamp without time zone" is no time of day.
constexpr std::array TypeWords{
    TypeWord{"BLOB", qgctNone, ValueKind::Unreadable},
    TypeWord{"BYTEA", qgctNone, ValueKind::Unreadable},
    TypeWord{"TIMESTAMP", qgctNone, ValueKind::Unreadable},
    TypeWord{"TIMESTAMPTZ", qgctNone, ValueKind::Unreadable},
    TypeWord{"DATETIME", qgctNone, ValueKind::Unreadable},
    TypeWord{"EURO", qgctEuro, ValueKind::Decimal},
    TypeWord{"EUR", qgctEuro, ValueKind::Decimal},
    TypeWord{"CURRENCY", qgctCurrency, ValueKind::Decimal},
    TypeWord{"MONEY", qgctCurrency, ValueKind::Decimal},
    TypeWord{"PERCENT", qgctPercent, ValueKind::Real},
    TypeWord{"PERCENTAGE", qgctPercent, ValueKind::Real},
    TypeWord{"SALUTATION", qgctSalutation, ValueKind::Choice},
    TypeWord{"PHONE", qgctPhone, ValueKind::Text},
    TypeWord{"TELEPHONE", qgctPhone, ValueKind::Text},
    TypeWord{"PHONE2", qgctPhone2, ValueKind::Text},
    TypeWord{"MOBILE", qgctPhone2, ValueKind::Text},
    TypeWord{"FAX", qgctFax, ValueKind::Text},
    TypeWord{"EMAIL", qgctEmail, ValueKind::Text},
    TypeWord{"MAIL", qgctEmail, ValueKind::Text},
    TypeWord{"URL", qgctwww, ValueKind::Text},
    TypeWord{"WWW", qgctwww, ValueKind::Text},
    TypeWord{"WEB", qgctwww, ValueKind::Text},
    TypeWord{"PASSWORD", qgctPassword, ValueKind::Text},
    TypeWord{"COLOR", qgctColor, ValueKind::Choice},
    TypeWord{"COLOUR", qgctColor, ValueKind::Choice},
    TypeWord{"FILE", qgctFile, ValueKind::Text},
    TypeWord{"SPIN", qgctSpin, ValueKind::Decimal},
    TypeWord{"BOOLEAN", qgctboolean, ValueKind::Boolean},
    TypeWord{"BOOL", qgctboolean, ValueKind::Boolean},
    TypeWord{"DATE", qgctDate, ValueKind::Date},
    TypeWord{"TIME", qgctTime, ValueKind::Time},
    TypeWord{"INTEGER", qgctInteger, ValueKind::Integer},
    TypeWord{"INT", qgctInteger, ValueKind::Integer},
    TypeWord{"INT2", qgctInteger, ValueKind::Integer},
    TypeWord{"INT4", qgctInteger, ValueKind::Integer},
    TypeWord{"INT8", qgctInteger, ValueKind::Integer},
    TypeWord{"TINYINT", qgctInteger, ValueKind::Integer},
    TypeWord{"SMALLINT", qgctInteger, ValueKind::Integer},
    TypeWord{"MEDIUMINT", qgctInteger, ValueKind::Integer},
    TypeWord{"BIGINT", qgctInteger, ValueKind::Integer},
    TypeWord{"SERIAL", qgctInteger, ValueKind::Integer},
    TypeWord{"BIGSERIAL", qgctInteger, ValueKind::Integer},
    TypeWord{"DECIMAL", qgctCurrency, ValueKind::Decimal},
    TypeWord{"NUMERIC", qgctCurrency, ValueKind::Decimal},
    TypeWord{"REAL", qgctNumber, ValueKind::Real},
    TypeWord{"DOUBLE", qgctNumber, ValueKind::Real},
    TypeWord{"FLOAT", qgctNumber, ValueKind::Real},
    TypeWord{"FLOAT4", qgctNumber, ValueKind::Real},
    TypeWord{"FLOAT8", qgctNumber, ValueKind::Real},
    TypeWord{"NUMBER", qgctNumber, ValueKind::Real},
    TypeWord{"TEXT", qgctNone, ValueKind::Text},
    TypeWord{"CHAR", qgctNone, ValueKind::Text},
    TypeWord{"CHARACTER", qgctNone, ValueKind::Text},
    TypeWord{"VARCHAR", qgctNone, ValueKind::Text},
    TypeWord{"NCHAR", qgctNone, ValueKind::Text},
    TypeWord{"NVARCHAR", qgctNone, ValueKind::Text},
    TypeWord{"CLOB", qgctNone, ValueKind::Text},
};

QList<int> SizesIn(const QString& declared) {
    static const QRegularExpression sizes(QStringLiteral("\\(\\s*(\\d{1,9})\\s*(?:,\\s*(\\d{1,9})\\s*)?\\)"));
    const auto match = sizes.match(declared);
    QList<int> found;
    if (match.hasMatch()) found << match.captured(1).toInt();
    if (match.hasCaptured(2)) found << match.captured(2).toInt();
    return found;
}

QStringList WordsIn(const QString& declared) {
    static const QRegularExpression gaps(QStringLiteral("\\([^)]*\\)|[^\\p{L}\\d]+"));
    return declared.toUpper().split(gaps, Qt::SkipEmptyParts);
}

} // namespace

ColumnType::ColumnType(const QString& declared) : sizes_(SizesIn(declared)) {
    if (declared.endsWith(u"[]")) return; // an array is shown as the text that the server writes
    const QStringList words = WordsIn(declared);
    for (const TypeWord& row : TypeWords) {
        if (!words.contains(QLatin1String(row.Word))) continue;
        template_ = row.Template;
        kind_ = row.Kind;
        known_ = true;
        plainDecimal_ = words.contains(u"DECIMAL") || words.contains(u"NUMERIC");
        plainDecimal_ = plainDecimal_ && !words.contains(u"CURRENCY") && !words.contains(u"MONEY");
        return;
    }
}

int ColumnType::TextLength() const {
    return IsText() && !sizes_.isEmpty() ? sizes_[0] : -1;
}

} // namespace quillgrid::editor
