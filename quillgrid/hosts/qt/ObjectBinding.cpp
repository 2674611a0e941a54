#include "quillgrid/hosts/qt/ObjectBinding.h"

#include "quillgrid/hosts/qt/CellDesign.h"

#include <QMetaMethod>
#include <QMetaProperty>

namespace quillgrid::qt {

namespace {

FieldType TypeOf(const QMetaProperty& property) {
    if (!property.isValid()) return {};
    const bool hasNames = property.isEnumType();
    const bool isAny = property.metaType() == QMetaType::fromType<QVariant>();
    return {.Type = hasNames ? QMetaType::fromType<int>()
                    : isAny  ? QMetaType()
                             : property.metaType(),
            .Enum = hasNames ? property.enumerator() : QMetaEnum(),
            .Nullable = property.isResettable()};
}

QStringList OwnProperties(const QMetaObject& type) {
    QStringList names;
    for (int i = QObject::staticMetaObject.propertyCount(); i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        if (property.isReadable() && property.isDesignable() && HasCell(TypeOf(property)))
            names << QString::fromLatin1(property.name());
    }
    return names;
}

} // namespace

ObjectBinding::ObjectBinding(QuillgridWidget* form, QObject* parent) : FormBinding(form, parent) {}

QObject* ObjectBinding::object() const {
    return object_;
}

bool ObjectBinding::setObject(QObject* object) {
    const QPointer<ObjectBinding> self(this);
    const QPointer<QObject> wanted(object);
    if (!mayLeave() || !self) return false;
    if (object_) disconnect(object_, nullptr, this, nullptr);
    object_ = wanted;
    if (object_) listen();
    showSource();
    return true;
}

void ObjectBinding::listen() {
    static const QMetaMethod notified =
        staticMetaObject.method(staticMetaObject.indexOfSlot("propertyNotified()"));
    const QMetaObject& type = *object_->metaObject();
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        if (property.hasNotifySignal())
            connect(object_, property.notifySignal(), this, notified, Qt::UniqueConnection);
    }
    connect(object_, &QObject::destroyed, this, &ObjectBinding::objectGone);
}

void ObjectBinding::objectGone() {
    object_ = nullptr;
    showSource();
}

bool ObjectBinding::addMapping(const QString& cell, const QString& property) {
    return addField(cell, {.Name = property});
}

void ObjectBinding::addCells(const QStringList& properties) {
    if (!object_) return;
    const QPointer<ObjectBinding> self(this);
    for (const QString& name : properties.isEmpty() ? OwnProperties(*object_->metaObject()) : properties) {
        const QMetaProperty found = property({.Name = name});
        if (!found.isValid()) continue;
        addCell({.Key = name, .Type = TypeOf(found)});
        addMapping(name, name);
        if (!self || !object_) return;
    }
}

QMetaProperty ObjectBinding::property(const FieldAddress& field) const {
    if (!object_) return {};
    const QMetaObject& type = *object_->metaObject();
    return type.property(type.indexOfProperty(field.Name.toLatin1().constData()));
}

FieldType ObjectBinding::fieldType(const FieldAddress& field) const {
    return TypeOf(property(field));
}

bool ObjectBinding::isWritable(const FieldAddress& field) const {
    return property(field).isWritable();
}

QVariant ObjectBinding::readField(const FieldAddress& field) const {
    const QMetaProperty found = property(field);
    if (!found.isReadable()) return {};
    const QVariant value = found.read(object_);
    return found.isEnumType() ? QVariant(value.toInt()) : value;
}

bool ObjectBinding::writeField(const FieldAddress& field, const QVariant& value) {
    const QMetaProperty found = property(field);
    return found.isResettable() && value.isNull() ? found.reset(object_) : found.write(object_, value);
}

void ObjectBinding::propertyNotified() {
    const int signal = senderSignalIndex();
    fieldsChanged(
        [this, signal](const FieldAddress& field) { return property(field).notifySignalIndex() == signal; });
}

} // namespace quillgrid::qt
