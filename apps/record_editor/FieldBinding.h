#pragma once

#include "apps/record_editor/ColumnRule.h"
#include "apps/record_editor/FieldCodec.h"
#include "apps/record_editor/Outcome.h"

#include "quillgrid/cells/Cell.h"
#include "quillgrid/locale/Locale.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quillgrid::editor {

/// Ties one column to one cell. A value that the cell cannot hold exactly is shown as plain text, as the
/// database has it, for as long as its record is shown; nothing is ever written that the user did not change.
class FieldBinding {
public:
    FieldBinding(ColumnRule rule, std::shared_ptr<Cell> cell, FieldCodec codec, Locale locale, bool readOnly);

    const ColumnRule& Rule() const { return rule_; }
    quillgrid::Cell& TheCell() const { return *cell_; }

    /// Makes the cell ready for a value of an existing record, for a column of a record that is not in the
    /// database yet.
    void Prepare(const FieldValue& value);
    void PrepareNew();
    /// What to put into the cell that was made ready for an existing record; nothing when it cannot hold it.
    const std::optional<Variant>& Prepared() const { return prepared_; }
    /// The cell has taken what was prepared for it, its default for a new record: looks whether it fits.
    void Take();
    void TakeNew();

    const FieldValue& Loaded() const { return loaded_; }
    /// False while the cell shows a value that does not fit its rule.
    bool Fits() const { return fits_; }
    /// Whether the value is a password: no message tells it.
    bool IsSecret() const { return cell_->Template() == qgctPassword; }
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
    std::optional<Variant> Decode(const FieldValue& value) const;
    std::optional<Variant> ForCell(const FieldValue& value) const;
    Variant StartValue();
    void DefineCell(bool mayBeNothing);
    void DefineKind();
    void Describe(const ColumnDescription& description);
    void KeepDemands();
    std::string Group() const;
    std::int32_t LongestText() const;
    bool IsList() const;
    bool IsForeignEuro() const;
    bool IsWritten() const { return !rule_.Locked && !readOnly_ && editable_; }
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
    std::optional<Variant> prepared_;
    Variant shown_;    ///< the cell's value as it was loaded
    Variant baseline_; ///< what the database has, or puts in itself
    bool readOnly_;
    bool fits_ = true;
    bool editable_ = true;       ///< false while the cell shows what one line cannot give back
    bool hasOwnDefault_ = false; ///< the dictionary's
    bool forceNull_ = false;
};

} // namespace quillgrid::editor
