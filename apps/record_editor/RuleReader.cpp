#include "apps/record_editor/RuleReader.h"

#include "apps/record_editor/ColumnRules.h"
#include "apps/record_editor/DataDictionary.h"
#include "apps/record_editor/Database.h"
#include "apps/record_editor/ReferenceEntries.h"
#include "apps/record_editor/SchemaReader.h"

namespace quillgrid::editor {
namespace {

Outcome<DataDictionary> FindDictionary(const Database& database, const TableSchema& schema,
                                       const QString& languageCode) {
    const auto tables = SchemaReader::For(database)->Tables();
    if (!tables) return tables.Reason();
    for (const TableName& table : *tables) {
        if (table.Shown.compare(u"data_dictionary", Qt::CaseInsensitive) != 0) continue;
        return DataDictionary::Read(database, table.Quoted, schema.Name.Shown, languageCode);
    }
    return DataDictionary();
}

void AddEntries(ColumnRule& rule, const Column& column, const Database& database) {
    if (!column.Reference || rule.Locked) return;
    // Without the right to read the other table the key is typed like any value.
    if (const auto entries = ReadReferenceEntries(database, *column.Reference)) rule.Choices = *entries;
    if (!rule.Choices.isEmpty()) rule.Kind = ValueKind::Choice;
}

} // namespace

Outcome<QList<ColumnRule>> ReadRules(const Database& database, const TableSchema& schema,
                                     LanguageConstants language, const QString& languageCode) {
    // A dictionary that cannot be read is worth no more than none.
    const auto dictionary = FindDictionary(database, schema, languageCode);
    QList<ColumnRule> rules;
    for (const Column& column : schema.Columns) {
        ColumnRule rule = RuleForColumn(column, schema, language);
        AddEntries(rule, column, database);
        if (dictionary) dictionary->Describe(rule, !database.Dialect().IsPostgres());
        AllowNoAnswer(rule, language);
        rules << rule;
    }
    return rules;
}

} // namespace quillgrid::editor
