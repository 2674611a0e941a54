#include "quillgrid/hosts/qt/PadNotices.h"

#include "quillgrid/hosts/qt/AccessibilityNotices.h"
#include "quillgrid/hosts/qt/AccessiblePad.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QApplication>

namespace quillgrid::qt {

namespace {

void Tell(QObject& of, QAccessible::Event kind) {
    QAccessibleEvent event(&of, kind);
    QAccessible::updateAccessibility(&event);
}

} // namespace

AccessiblePad* PadNotices::Listened() const {
    return QAccessible::isActive() ? AccessiblePad::Of(pad_) : nullptr;
}

/// The row that dropped the pad down is unfolded while it is open.
void PadNotices::TellOpened(bool open) {
    Tell(pad_, open ? QAccessible::ObjectShow : QAccessible::ObjectHide); // Qt is silent about such windows
    const auto* owner = qobject_cast<const QuillgridWidget*>(pad_.Owner());
    const AccessibilityNotices* notices = owner ? AccessibilityNotices::Of(*owner) : nullptr;
    QAccessibleInterface* row = notices ? notices->CurrentRow() : nullptr;
    if (!row) return;
    QAccessible::State changed;
    changed.expanded = true;
    QAccessibleStateChangeEvent state(row, changed);
    QAccessible::updateAccessibility(&state);
}

void PadNotices::Shown() {
    AccessiblePad* told = pad_.parentWidget() ? nullptr : Listened();
    if (!told) return;
    told->ForgetTold();
    TellOpened(true);
}

void PadNotices::Hidden() {
    if (pad_.parentWidget() || !Listened()) return;
    TellOpened(false);
    QWidget* focus = QApplication::focusWidget();
    if (focus && pad_.Owner() && (focus == pad_.Owner() || pad_.Owner()->isAncestorOf(focus)))
        Tell(*focus, QAccessible::Focus);
}

void PadNotices::Moved() {
    if (AccessiblePad* told = Listened()) told->Tell();
}

void PadNotices::Forget() {
    if (AccessiblePad* told = Listened()) told->ForgetTold();
}

} // namespace quillgrid::qt
