#pragma once

#include "quillgrid/hosts/qt/FormBinding.h"

#include <QPointer>

namespace quillgrid::qt {

/// Ties cells of a form to the properties of an object. Properties with a NOTIFY signal show their changes at
/// once, the others by `revert()`.
class QUILLGRID_EXPORT ObjectBinding : public FormBinding {
    Q_OBJECT

public:
    explicit ObjectBinding(QuillgridWidget* form, QObject* parent = nullptr);

    QObject* object() const;
    /// Binds another object, or none: the cells are empty and locked then, as they are for properties that it
    /// does not have. False, and nothing changes, when `commitPending()` is false or input is unsubmitted.
    bool setObject(QObject* object);

    /// Lets a cell show a property; the object may come later. A cell of this key may come later too. False
    /// for an empty key.
    bool addMapping(const QString& cell, const QString& property);
    /// Adds a cell for each of these properties (for all that the object's class adds to QObject, without
    /// names), where the form has none of that key, and binds it. The key is the name of the property, the
    /// caption too: "birthDate" becomes "Birth date". Enumerations become lists. Refresh the grid afterwards.
    void addCells(const QStringList& properties = {});

protected:
    FieldType fieldType(const FieldAddress& field) const override;
    bool isWritable(const FieldAddress& field) const override;
    QVariant readField(const FieldAddress& field) const override;
    bool writeField(const FieldAddress& field, const QVariant& value) override;

private Q_SLOTS:
    void propertyNotified();

private:
    QMetaProperty property(const FieldAddress& field) const;
    void listen();
    void objectGone();

    QPointer<QObject> object_;
};

} // namespace quillgrid::qt
