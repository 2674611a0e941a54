#pragma once

#include "apps/record_editor/FieldBinding.h"
#include "apps/record_editor/RecordStore.h"

#include "quillgrid/grid/Quillgrid.h"

#include <QList>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace quillgrid::editor {

/// For whom the form is made.
struct FormSettings {
    Locale UserLocale;
    LanguageConstants Language = qglgEnglish;
    QString LanguageCode = QStringLiteral("en"); ///< of texts in the data dictionary
};

/// One record of a table in a Quillgrid: one cell per column.
class RecordForm {
public:
    /// Reads what the database tells about the table and makes the cells; the grid's former cells go. Nothing
    /// is shown yet. The grid and the database must outlive the form.
    static Outcome<std::unique_ptr<RecordForm>> Open(Quillgrid& grid, Database& database,
                                                     const TableName& table, const FormSettings& settings);

    qsizetype Count() const { return store_.Count(); }
    /// 0-based; -1 while a new record is shown or the table is empty.
    qsizetype Position() const { return position_; }
    bool IsNew() const { return isNew_; }
    bool CanWrite() const { return store_.CanWrite(); }
    QString TableTitle() const { return store_.Schema().Name.Shown; }
    /// Why nothing can be written, or that not all records can be reached; "" when all is well.
    QString Notice() const;

    /// Shows a record, dropping changes. On failure the form stays as it was.
    Outcome<Done> Show(qsizetype position);
    void ShowNew();
    /// Loads the shown record again, dropping changes.
    Outcome<Done> Revert();
    bool IsModified() const;
    /// Writes what the user changed. On failure the user's input stays in the cells. What the user should
    /// know on success, "" when nothing.
    Outcome<QString> Save();

    /// The binding of a cell, null for cells of others.
    FieldBinding* BindingOf(const Cell& cell);
    FieldBinding& Binding(qsizetype column) { return bindings_[static_cast<std::size_t>(column)]; }

private:
    RecordForm(Quillgrid& grid, Database& database, TableSchema schema);

    void MakeCells(const QList<ColumnRule>& rules, const FormSettings& settings, bool postgres);
    Outcome<QList<FieldChange>> Changes() const;
    Outcome<qsizetype> Write(const QList<FieldChange>& changes);
    Outcome<QString> ShowSaved(qsizetype position);
    void MakeGroups();
    void Fill(const QList<FieldValue>& values);
    void FillNew();
    void Shown(qsizetype position, bool isNew);

    Quillgrid& grid_;
    const Database& database_;
    RecordStore store_;
    std::vector<FieldBinding> bindings_;
    std::unordered_map<std::string, std::size_t> byKey_; ///< bindings by the keys of their cells
    qsizetype position_ = -1;
    bool isNew_ = false;
};

} // namespace quillgrid::editor
