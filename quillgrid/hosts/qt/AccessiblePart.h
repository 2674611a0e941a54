#pragma once

#include "quillgrid/hosts/qt/PadPart.h"

#include <QAccessible>
#include <QPointer>
#include <QWidget>

namespace quillgrid::qt {

class AccessiblePad;

/// A part of a pad as assistive programs see it. It keeps nothing but its number, and is invalid while its
/// pad has no such part.
class AccessiblePart : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessiblePart(QWidget& face, int number) : face_(&face), number_(number) {}

    int Number() const { return number_; }

    bool isValid() const override { return Told().Role != QAccessible::NoRole; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int index) const override;
    int childCount() const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int x, int y) const override;
    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override { return Told().Role; }
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

protected:
    /// Null while there is no pad.
    AccessiblePad* Pad() const;
    /// What the pad tells of this part at present.
    PadPart Told() const;

private:
    QPointer<QWidget> face_;
    int number_;
};

} // namespace quillgrid::qt
