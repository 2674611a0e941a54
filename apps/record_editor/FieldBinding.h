#pragma once

#include "apps/record_editor/ColumnRule.h"
#include "apps/record_editor/FieldCodec.h"
#include "apps/record_editor/Outcome.h"

#include "quillgrid/cells/Cell.h"
#include "quillgrid/locale/Locale.h"

#include <memory>
#include <optional>

namespace quillgrid::editor {

/// Ties one column to one cell. A value that the cell cannot hold exactly is shown as plain text, as the
/// database has it, for as long as its record is shown; nothing is ever written that the user did not change.
class FieldBinding {
public:
    FieldBinding(ColumnRule rule, std::shared_ptr<Cell> cell, FieldCodec codec, Locale locale, bool readOnly);

    const ColumnRule& Rule() const { return rule_; }
    quillgrid::Cell& TheCell() const { return *cell_; }

    /// Shows a value of an existing record.
    void Load(const FieldValue& value);
    /// Shows the column of a record that is not in the database yet.
    void LoadNew();

    const FieldValue& Loaded() const { return loaded_; }
    /// False while the cell shows a value that does not fit its rule.
    bool Fits() const { return fits_; }
    /// What the user should know about the shown value, "" when nothing.
    QString Hint() const;

    /// Whether the user changed the value since it was shown.
    bool IsTouched() const;
    /// Whether the value has to be written: touched, or in a new record shown without being the default.
    bool IsChanged() const;
    /// Empties the cell so that NULL is saved, an empty text too.
    void SetNull();
    /// What to bind, or why what was typed is no value of this column.
    Outcome<QVariant> ToDatabase() const;

private:
    std::optional<Variant> DecodeLoaded() const;
    void Fill(const FieldValue& value, bool mayBeNothing);
    void DefineCell(bool mayBeNothing);
    bool IsList() const;
    bool IsForeignEuro() const;
    void Lock(bool locked);
    void FillList();
    void ShowAsIs();
    bool IsShownExactly(const Variant& value) const;
    Variant Current() const;
    bool Differs(const Variant& from) const;
    QVariant Nothing() const;
    QVariant ChosenValue(const QString& text) const;

    ColumnRule rule_;
    std::shared_ptr<Cell> cell_;
    FieldCodec codec_;
    Locale locale_;
    FieldValue loaded_;
    Variant shown_;    ///< the cell's value as it was loaded
    Variant baseline_; ///< what the database has, or puts in itself
    bool readOnly_;
    bool fits_ = true;
    bool forceNull_ = false;
};

} // namespace quillgrid::editor
