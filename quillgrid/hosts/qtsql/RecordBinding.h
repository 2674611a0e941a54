#pragma once

#include "quillgrid/hosts/qt/FormBinding.h"

#include <QSqlRecord>

namespace quillgrid::qt {

/// Ties cells of a form to the fields of a record that it keeps: what the user changes is found in
/// `record()`, ready for QSqlTableModel or QSqlDriver::sqlStatement. A NULL is an empty cell.
class QUILLGRID_EXPORT RecordBinding : public FormBinding {
    Q_OBJECT

public:
    explicit RecordBinding(QuillgridWidget* form, QObject* parent = nullptr);

    /// The record with what was changed and submitted. Only changed fields are marked as generated, so that
    /// a statement that is made of it writes these and no others.
    QSqlRecord record() const;
    /// Begins with another record. False, and nothing changes, when `commitPending()` is false or input is
    /// unsubmitted; what was submitted to the record before goes with it.
    bool setRecord(const QSqlRecord& record);
    /// Whether a field has changed since `setRecord`.
    bool isModified() const;
    /// Sets a field, as the user would. False when there is none of this name, in any case, or it is
    /// read-only.
    bool setValue(const QString& field, const QVariant& value);

    /// Lets a cell show a field, found by its name in any case. False for an empty key.
    bool addMapping(const QString& cell, const QString& field);
    /// Adds a cell for each field, where the form has none of that key, and binds it. Key and caption are the
    /// name of the field; its type, length and whether it must have a value become rules of the cell. Refresh
    /// the grid afterwards.
    void addCells();

Q_SIGNALS:
    /// A field of the record was set.
    void fieldChanged(const QString& field);

protected:
    FieldType fieldType(const FieldAddress& field) const override;
    bool isWritable(const FieldAddress& field) const override;
    QVariant readField(const FieldAddress& field) const override;
    bool writeField(const FieldAddress& field, const QVariant& value) override;

private:
    QSqlRecord record_;
};

} // namespace quillgrid::qt
