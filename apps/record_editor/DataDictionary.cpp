#include "apps/record_editor/DataDictionary.h"

#include "apps/record_editor/Database.h"

#include <QSqlRecord>

#include <array>
#include <optional>

namespace quillgrid::editor {
namespace {

struct TemplateKind {
    CellTemplateConstants Template;
    ValueKind Kind;
};
// Those that are not here take texts.
constexpr std::array<TemplateKind, 15> Kinds{{
    {qgctInteger, ValueKind::Integer},
    {qgctCurrency, ValueKind::Decimal},
    {qgctEuro, ValueKind::Decimal},
    {qgctSpin, ValueKind::Decimal},
    {qgctNumber, ValueKind::Real},
    {qgctPercent, ValueKind::Real},
    {qgctDate, ValueKind::Date},
    {qgctTime, ValueKind::Time},
    {qgctboolean, ValueKind::Boolean},
    {qgctColor, ValueKind::Choice},
    {qgctSysColor, ValueKind::Choice},
    {qgctSalutation, ValueKind::Choice},
    {qgctPrinter, ValueKind::Choice},
    {qgctImagelist, ValueKind::Choice},
    {qgctFont, ValueKind::Choice},
}};

ValueKind KindOf(CellTemplateConstants number) {
    for (const TemplateKind& row : Kinds) {
        if (row.Template == number) return row.Kind;
    }
    return ValueKind::Text;
}

bool IsNumber(ValueKind kind) {
    return kind == ValueKind::Integer || kind == ValueKind::Decimal || kind == ValueKind::Real;
}

/// How a column's values are read and written in such a cell; nothing where the cell cannot hold them. A
/// number keeps the kind that its column declares, whatever it is dressed up as.
std::optional<ValueKind> KindIn(CellTemplateConstants number, ValueKind column, bool booleansAsNumbers) {
    const ValueKind wanted = KindOf(number);
    if (wanted == column || (IsNumber(wanted) && IsNumber(column))) return column;
    switch (column) {
    case ValueKind::Text: return wanted == ValueKind::Boolean ? std::nullopt : std::optional(wanted);
    case ValueKind::Integer: {
        const bool fits = wanted == ValueKind::Choice || (wanted == ValueKind::Boolean && booleansAsNumbers);
        return fits ? std::optional(wanted) : std::nullopt;
    }
    default: return std::nullopt;
    }
}

void ChooseTemplate(ColumnRule& rule, const QString& text, bool booleansAsNumbers) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < qgctNone || number > qgctNumber || rule.Template == number) return;
    const auto wanted = static_cast<CellTemplateConstants>(number);
    if (wanted == qgctlist && rule.Choices.isEmpty()) return; // nothing to choose from
    const auto kind = KindIn(wanted, rule.Kind, booleansAsNumbers);
    if (!kind) return;
    // Limits of the column stay as long as they speak of the same kind of value.
    if (*kind != rule.Kind) rule.Min = rule.Max = Variant::Null();
    rule.Template = wanted;
    rule.Kind = *kind;
    rule.Format.reset();
    rule.Charlist.reset();
    rule.HidesImage = false;
    if (wanted != qgctNone && wanted != qgctlist) rule.Choices.clear();
}

QHash<QString, QVariant> ReadRow(const QSqlQuery& query, const QString& language) {
    QHash<QString, QVariant> row;
    QHash<QString, QVariant> translated;
    const QString suffix = u'_' + language;
    const QSqlRecord fields = query.record();
    for (int i = 0; i < fields.count(); ++i) {
        if (query.isNull(i)) continue;
        const QString name = fields.fieldName(i).toLower();
        row[name] = query.value(i);
        if (name.endsWith(suffix)) translated[name.chopped(suffix.size())] = query.value(i);
    }
    row.insert(translated);
    return row;
}

} // namespace

Outcome<DataDictionary> DataDictionary::Read(const Database& database, const QString& quotedDictionary,
                                             const QString& table, const QString& language) {
    auto rows = database.Run(u"SELECT * FROM " + quotedDictionary + u" WHERE table_name = ?", {table});
    if (!rows) return rows.Reason();
    DataDictionary dictionary;
    while (rows->next()) {
        const auto row = ReadRow(*rows, language.toLower());
        dictionary.columns_[row.value(QStringLiteral("column_name")).toString().toLower()] = row;
    }
    return dictionary;
}

void DataDictionary::Describe(ColumnRule& rule, bool booleansAsNumbers) const {
    const auto found = columns_.constFind(rule.Name.toLower());
    if (found == columns_.constEnd()) return;
    ChooseTemplate(rule, found->value(QStringLiteral("template")).toString(), booleansAsNumbers);
    if (found->contains(QStringLiteral("caption")))
        rule.Caption = found->value(QStringLiteral("caption")).toString();
    rule.Description = ColumnDescription(*found, rule.Kind);
}

} // namespace quillgrid::editor
