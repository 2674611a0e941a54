#include "apps/record_editor/DataDictionary.h"

#include "apps/record_editor/ColumnRules.h"
#include "apps/record_editor/Database.h"

#include <QSqlRecord>

#include <array>

namespace quillgrid::editor {
namespace {

using Setter = void (*)(ColumnRule& rule, const QString& text);

bool IsTrue(const QString& text) {
    return text.compare(u"true", Qt::CaseInsensitive) == 0 || text == u"t" || text.toInt() != 0;
}

struct TemplateKind {
    CellTemplateConstants Template;
    ValueKind Kind;
};
constexpr std::array<TemplateKind, 12> Kinds{{
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
}};

void SetTemplate(ColumnRule& rule, const QString& text) {
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < qgctNone || number > qgctNumber || rule.Kind == ValueKind::Unreadable) return;
    rule.Template = static_cast<CellTemplateConstants>(number);
    rule.Kind = ValueKind::Text;
    for (const TemplateKind& row : Kinds) {
        if (row.Template == rule.Template) rule.Kind = row.Kind;
    }
    rule.Format.reset();
    rule.Charlist.reset();
    rule.Min = rule.Max = Variant::Null(); // they spoke of another kind of value
    if (rule.Template != qgctNone && rule.Template != qgctlist) rule.Choices.clear();
}

struct Property {
    const char* Name;
    Setter Set;
};
// The template first: the others refine it.
constexpr std::array<Property, 13> Properties{{
    {"template", SetTemplate},
    {"caption", [](ColumnRule& rule, const QString& text) { rule.Caption = text; }},
    {"tooltiptext", [](ColumnRule& rule, const QString& text) { rule.ToolTip = text; }},
    {"min", [](ColumnRule& rule, const QString& text) { rule.Min = BoundFromText(text, rule.Kind); }},
    {"max", [](ColumnRule& rule, const QString& text) { rule.Max = BoundFromText(text, rule.Kind); }},
    {"maxlength", [](ColumnRule& rule, const QString& text) { rule.MaxLength = qMax(0, text.toInt()); }},
    {"allowempty", [](ColumnRule& rule, const QString& text) { rule.AllowEmpty = IsTrue(text); }},
    {"charlist", [](ColumnRule& rule, const QString& text) { rule.Charlist = text; }},
    {"format", [](ColumnRule& rule, const QString& text) { rule.Format = text; }},
    {"unit", [](ColumnRule& rule, const QString& text) { rule.Unit = text; }},
    // What the database computes stays locked whatever the dictionary says.
    {"locked", [](ColumnRule& rule, const QString& text) { rule.Locked = rule.Locked || IsTrue(text); }},
    {"visible", [](ColumnRule& rule, const QString& text) { rule.Visible = IsTrue(text); }},
    {"enabled", [](ColumnRule& rule, const QString& text) { rule.Locked = rule.Locked || !IsTrue(text); }},
}};

QHash<QString, QString> ReadRow(const QSqlQuery& query, const QString& language) {
    QHash<QString, QString> row;
    const QSqlRecord fields = query.record();
    for (int i = 0; i < fields.count(); ++i) {
        if (!query.isNull(i)) row[fields.fieldName(i).toLower()] = query.value(i).toString();
    }
    for (const QString& property : {QStringLiteral("caption"), QStringLiteral("tooltiptext")}) {
        if (const QString own = property + u'_' + language; row.contains(own)) row[property] = row[own];
    }
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
        dictionary.columns_[row.value(QStringLiteral("column_name")).toLower()] = row;
    }
    return dictionary;
}

void DataDictionary::Apply(ColumnRule& rule) const {
    const auto found = columns_.constFind(rule.Name.toLower());
    if (found == columns_.constEnd()) return;
    for (const Property& property : Properties) {
        const auto text = found->constFind(QLatin1String(property.Name));
        if (text != found->constEnd()) property.Set(rule, *text);
    }
}

} // namespace quillgrid::editor
