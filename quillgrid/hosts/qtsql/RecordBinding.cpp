#include "quillgrid/hosts/qtsql/RecordBinding.h"

#include "quillgrid/hosts/qt/CellDesign.h"

#include <QPointer>
#include <QSqlField>

namespace quillgrid::qt {

namespace {

FieldType TypeOf(const QSqlField& field) {
    return {.Type = field.metaType(), .Nullable = field.requiredStatus() != QSqlField::Required};
}

} // namespace

RecordBinding::RecordBinding(QuillgridWidget* form, QObject* parent) : FormBinding(form, parent) {}

QSqlRecord RecordBinding::record() const {
    return record_;
}

bool RecordBinding::setRecord(const QSqlRecord& record) {
    const QPointer<RecordBinding> self(this);
    const QSqlRecord wanted = record;
    if (!mayLeave() || !self) return false;
    record_ = wanted;
    for (int i = 0; i < record_.count(); ++i)
        record_.setGenerated(i, false);
    showSource();
    return true;
}

bool RecordBinding::isModified() const {
    for (int i = 0; i < record_.count(); ++i) {
        if (record_.isGenerated(i)) return true;
    }
    return false;
}

bool RecordBinding::setValue(const QString& field, const QVariant& value) {
    const QPointer<RecordBinding> self(this);
    const FieldAddress address{.Name = field};
    if (!isWritable(address) || !writeField(address, value)) return false;
    if (self) fieldsChanged();
    return true;
}

bool RecordBinding::addMapping(const QString& cell, const QString& field) {
    return addField(cell, {.Name = field});
}

void RecordBinding::addCells() {
    const QPointer<RecordBinding> self(this);
    const QSqlRecord fields = record_;
    for (int i = 0; self && i < fields.count(); ++i) {
        const QSqlField field = fields.field(i);
        if (!HasCell(TypeOf(field))) continue;
        addCell({.Key = field.name(), .Type = TypeOf(field), .MaxLength = field.length()});
        addMapping(field.name(), field.name());
    }
}

FieldType RecordBinding::fieldType(const FieldAddress& field) const {
    const int index = record_.indexOf(field.Name);
    return index < 0 ? FieldType{} : TypeOf(record_.field(index));
}

bool RecordBinding::isWritable(const FieldAddress& field) const {
    const int index = record_.indexOf(field.Name);
    return index >= 0 && !record_.field(index).isReadOnly();
}

QVariant RecordBinding::readField(const FieldAddress& field) const {
    const int index = record_.indexOf(field.Name);
    return index < 0 ? QVariant() : record_.value(index);
}

bool RecordBinding::writeField(const FieldAddress& field, const QVariant& value) {
    const int index = record_.indexOf(field.Name);
    if (index < 0) return false;
    record_.setValue(index, value);
    record_.setGenerated(index, true);
    Q_EMIT fieldChanged(record_.fieldName(index));
    return true;
}

} // namespace quillgrid::qt
