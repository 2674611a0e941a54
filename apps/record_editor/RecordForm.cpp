#include "apps/record_editor/RecordForm.h"

#include "apps/record_editor/RuleReader.h"
#include "apps/record_editor/SchemaReader.h"

#include "quillgrid/base/Text.h"

#include <algorithm>
#include <array>

namespace quillgrid::editor {
namespace {

/// Known to the sheet of the cells, but listed only on request.
constexpr std::array<std::string_view, 5> Unlisted{"Format", "Increment", "AllowHoliday", "AllowSaturday",
                                                   "AllowSunday"};

/// With these in the sheet a data dictionary reaches them like all others.
void ListAllProperties(Properties& sheet) {
    for (const std::string_view name : Unlisted) {
        const bool listed = std::any_of(sheet.begin(), sheet.end(),
                                        [&](const auto& item) { return EqualIgnoreCase(item->Key(), name); });
        if (!listed) sheet.Add({.Key = std::string(name)});
    }
}

/// The name of the column, or one made of it where it is empty or differs from another only in case.
std::string FreeKey(Quillgrid& grid, const std::string& name) {
    std::string key = name;
    for (int number = 2; key.empty() || grid.Cells().Find(ItemKey(key)); ++number)
        key = name + " (" + std::to_string(number) + ")";
    return key;
}

/// The values made ready for the cells, as a record of the control.
class PreparedRecord : public Record {
public:
    PreparedRecord(const std::vector<FieldBinding>& bindings,
                   const std::unordered_map<std::string, std::size_t>& byKey)
        : bindings_(bindings), byKey_(byKey) {}

    std::optional<Variant> Field(std::string_view key) const override {
        const auto found = byKey_.find(std::string(key));
        return found == byKey_.end() ? std::nullopt : bindings_[found->second].Prepared();
    }

private:
    const std::vector<FieldBinding>& bindings_;
    const std::unordered_map<std::string, std::size_t>& byKey_;
};

} // namespace

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
        auto cell = grid_.Add({.Key = FreeKey(grid_, rule.Name.toStdString())});
        ListAllProperties(*cell->Properties());
        byKey_.emplace(cell->Key(), bindings_.size());
        bindings_.emplace_back(rule, std::move(cell), FieldCodec(postgres), settings.UserLocale, !CanWrite());
    }
    FillNew();
    MakeGroups();
}

/// The headings come after the cells, so that the first cell stays the first that a user would want.
void RecordForm::MakeGroups() {
    for (const FieldBinding& binding : bindings_) {
        const std::string& key = binding.TheCell().Group();
        if (!key.empty() && !grid_.Groups().Find(ItemKey(key))) grid_.AddGroup({.Key = key});
    }
    grid_.SetGrouped(grid_.Groups().Count() > 0);
    grid_.SetShowGroupBox(grid_.Groups().Count() > 0);
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

void RecordForm::Fill(const QList<FieldValue>& values) {
    for (std::size_t i = 0; i < bindings_.size(); ++i)
        bindings_[i].Prepare(values[static_cast<qsizetype>(i)]);
    grid_.LoadRecord(PreparedRecord(bindings_, byKey_));
    for (FieldBinding& binding : bindings_)
        binding.Take();
}

void RecordForm::FillNew() {
    for (FieldBinding& binding : bindings_)
        binding.PrepareNew();
    grid_.AddNew();
    for (FieldBinding& binding : bindings_)
        binding.TakeNew();
}

void RecordForm::Shown(qsizetype position, bool isNew) {
    position_ = position;
    isNew_ = isNew;
    grid_.Update(); // Escape returns to what was loaded
    // The edit box still holds what belonged to the record before.
    if (const auto cell = grid_.Cell()) cell->Undo();
}

Outcome<Done> RecordForm::Show(qsizetype position) {
    const auto values = store_.Read(position);
    if (!values) return values.Reason();
    Fill(*values);
    Shown(position, false);
    return Done{};
}

void RecordForm::ShowNew() {
    FillNew();
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
        changes << FieldChange{static_cast<qsizetype>(i), *value, bindings_[i].Loaded(),
                               bindings_[i].IsSecret()};
    }
    return changes;
}

Outcome<QString> RecordForm::Save() {
    const auto changes = Changes();
    if (!changes) return changes.Reason();
    const auto position = Write(*changes);
    return position ? ShowSaved(*position) : Outcome<QString>(position.Reason());
}

Outcome<qsizetype> RecordForm::Write(const QList<FieldChange>& changes) {
    if (isNew_) return store_.Insert(changes);
    if (const auto saved = store_.Update(position_, changes); !saved) return saved.Reason();
    return position_;
}

/// A trigger may have moved the record to another key, or taken it away. It is saved all the same.
Outcome<QString> RecordForm::ShowSaved(qsizetype position) {
    const auto shown = Show(position);
    if (shown) return QString();
    const auto read = store_.Open();
    if (!read || !Show(std::min(position, Count() - 1))) ShowNew();
    return QStringLiteral("Saved, but the database keeps the record under another key: %1")
        .arg(shown.Message());
}

FieldBinding* RecordForm::BindingOf(const Cell& cell) {
    for (FieldBinding& binding : bindings_) {
        if (&binding.TheCell() == &cell) return &binding;
    }
    return nullptr;
}

} // namespace quillgrid::editor
