#include "apps/record_editor/RecordForm.h"

#include "apps/record_editor/RuleReader.h"
#include "apps/record_editor/SchemaReader.h"

namespace quillgrid::editor {

Outcome<std::unique_ptr<RecordForm>> RecordForm::Open(Quillgrid& grid, Database& database,
                                                      const TableName& table, const FormSettings& settings) {
    const auto schema = SchemaReader::For(database)->Read(table);
    if (!schema) return schema.Reason();
    const auto rules = ReadRules(database, *schema, settings.Language, settings.LanguageCode);
    if (!rules) return rules.Reason();
    std::unique_ptr<RecordForm> form(new RecordForm(grid, database, *schema));
    if (const auto opened = form->store_.Open(); !opened) return opened.Reason();
    form->MakeCells(*rules, settings, database.Dialect().IsPostgres());
    return form;
}

RecordForm::RecordForm(Quillgrid& grid, Database& database, TableSchema schema)
    : grid_(grid), database_(database), store_(database, std::move(schema)) {}

void RecordForm::MakeCells(const QList<ColumnRule>& rules, const FormSettings& settings, bool postgres) {
    grid_.Clear();
    grid_.SetLanguage(settings.Language);
    bindings_.reserve(static_cast<std::size_t>(rules.size()));
    for (const ColumnRule& rule : rules) {
        // Names that differ in case only share a key; cells get along without one.
        const std::string name = rule.Name.toStdString();
        const bool taken = grid_.Cells().Find(ItemKey(name)) != nullptr;
        auto cell = grid_.Add({.Key = taken ? std::string() : name});
        bindings_.emplace_back(rule, std::move(cell), FieldCodec(postgres), settings.UserLocale, !CanWrite());
        bindings_.back().LoadNew();
    }
}

QString RecordForm::Notice() const {
    const TableSchema& schema = store_.Schema();
    if (schema.Name.IsView)
        return QStringLiteral("“%1” is a view: it is open for reading only.").arg(schema.Name.Shown);
    if (!schema.HasKey()) {
        return QStringLiteral(
                   "“%1” has no primary key to tell its records apart: it is open for reading only.")
            .arg(schema.Name.Shown);
    }
    if (database_.IsReadOnly())
        return QStringLiteral("The file may not be written: it is open for reading only.");
    if (!store_.IsTruncated()) return {};
    return QStringLiteral("Only the first %L1 records can be reached.").arg(store_.Count());
}

void RecordForm::Shown(qsizetype position, bool isNew) {
    position_ = position;
    isNew_ = isNew;
    grid_.SetSilent(false);
    grid_.Update(); // Escape returns to what was loaded
    // The edit box still holds what belonged to the record before.
    if (const auto cell = grid_.Cell()) cell->Undo();
}

Outcome<Done> RecordForm::Show(qsizetype position) {
    const auto values = store_.Read(position);
    if (!values) return values.Reason();
    for (std::size_t i = 0; i < bindings_.size(); ++i)
        bindings_[i].Load((*values)[static_cast<qsizetype>(i)]);
    Shown(position, false);
    return Done{};
}

void RecordForm::ShowNew() {
    for (FieldBinding& binding : bindings_)
        binding.LoadNew();
    Shown(-1, true);
}

Outcome<Done> RecordForm::Revert() {
    if (isNew_ || position_ < 0) {
        ShowNew();
        return Done{};
    }
    return Show(position_);
}

bool RecordForm::IsModified() const {
    if (!CanWrite()) return false;
    for (const FieldBinding& binding : bindings_) {
        if (binding.IsTouched()) return true;
    }
    return false;
}

Outcome<QList<FieldChange>> RecordForm::Changes() const {
    QList<FieldChange> changes;
    for (std::size_t i = 0; i < bindings_.size(); ++i) {
        if (!bindings_[i].IsChanged()) continue;
        const auto value = bindings_[i].ToDatabase();
        if (!value) return value.Reason();
        changes << FieldChange{static_cast<qsizetype>(i), *value, bindings_[i].Loaded()};
    }
    return changes;
}

Outcome<Done> RecordForm::Save() {
    const auto changes = Changes();
    if (!changes) return changes.Reason();
    if (isNew_) return Insert(*changes);
    if (const auto saved = store_.Update(position_, *changes); !saved) return saved;
    return Show(position_);
}

Outcome<Done> RecordForm::Insert(const QList<FieldChange>& changes) {
    const auto position = store_.Insert(changes);
    if (!position) return position.Reason();
    return Show(*position);
}

FieldBinding* RecordForm::BindingOf(const Cell& cell) {
    for (FieldBinding& binding : bindings_) {
        if (&binding.TheCell() == &cell) return &binding;
    }
    return nullptr;
}

} // namespace quillgrid::editor
