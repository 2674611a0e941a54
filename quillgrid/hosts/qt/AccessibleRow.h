#pragma once

#include "quillgrid/cells/Cell.h"

#include <QAccessible>
#include <QPointer>

#include <memory>

namespace quillgrid {
class Quillgrid;
}

namespace quillgrid::qt {

class AccessibilityNotices;
class QuillgridWidget;

/// A row of the control as assistive programs see it: role, caption, shown text, states and what can be done
/// with it. It holds nothing alive: once its cell has no row any more, or the control has gone, it says so by
/// being invalid, and answers everything with nothing.
class AccessibleRow : public QAccessibleInterface,
                      public QAccessibleActionInterface,
                      public QAccessibleTextInterface,
                      public QAccessibleValueInterface {
public:
    /// Without a cell it stands for a row that is not there.
    AccessibleRow(QuillgridWidget& widget, std::weak_ptr<Cell> cell);

    bool IsFor(const Cell& cell) const { return cell_.lock().get() == &cell; }
    bool IsGone() const { return cell_.expired(); }
    /// Counted from 1; 0 while the cell has no row.
    std::int32_t Row() const;

    bool isValid() const override { return Row() > 0; }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    // The one child is the pad that the cell has dropped down.
    QAccessibleInterface* child(int index) const override;
    int childCount() const override { return OpenPad() ? 1 : 0; }
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QString text(QAccessible::Text which) const override;
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override;
    QAccessible::Role role() const override;
    QAccessible::State state() const override;
    void* interface_cast(QAccessible::InterfaceType type) override;

    QStringList actionNames() const override;
    void doAction(const QString& name) override;
    QStringList keyBindingsForAction(const QString& name) const override;

    // Of a cell with a spin button. It is set by stepping and typing, where the program's checks see it.
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

    // What is shown, to be read character by character; it is edited in the edit box.
    void selection(int, int* start, int* end) const override { *start = *end = 0; }
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override;
    int characterCount() const override { return static_cast<int>(Shown().size()); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int* start, int* end) const override;

private:
    AccessibilityNotices* Notices() const;
    Quillgrid* Grid() const;
    /// Null once the row has gone.
    std::shared_ptr<Cell> ShownCell() const;
    QString Shown() const;
    QAccessibleInterface* OpenPad() const;
    QVariant NumberOf(const Variant& value) const;
    QString Description(const Cell& cell) const;
    bool IsRefused(const Cell& cell) const;
    bool IsExpanded(const Cell& heading) const;
    std::int32_t FoldingKey(const Cell& heading) const;
    void Act(const std::shared_ptr<Cell>& cell, const QString& name);

    QPointer<QuillgridWidget> widget_;
    std::weak_ptr<Cell> cell_;
};

} // namespace quillgrid::qt
