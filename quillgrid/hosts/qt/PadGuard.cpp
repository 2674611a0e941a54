#include "quillgrid/hosts/qt/PadGuard.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

namespace quillgrid::qt {

void PadGuard::Start() {
    if (!watching_) QApplication::instance()->installEventFilter(this);
    watching_ = true;
}

void PadGuard::Stop() {
    if (watching_) QApplication::instance()->removeEventFilter(this);
    watching_ = false;
}

bool PadGuard::eventFilter(QObject* watched, QEvent* event) {
    if (watched->isWidgetType() && Ends(static_cast<const QWidget&>(*watched), *event)) Close();
    return false;
}

/// Presses on the control itself are the control's own affair.
bool PadGuard::Ends(const QWidget& widget, const QEvent& event) const {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: return &widget != &owner_ && !IsPad(widget);
    case QEvent::Move:
    case QEvent::Hide:
    case QEvent::Close:
    case QEvent::WindowDeactivate:
    case QEvent::WindowStateChange:
    case QEvent::ParentChange:
    case QEvent::EnabledChange: return &widget == &owner_ || widget.isAncestorOf(&owner_);
    default: return false;
    }
}

} // namespace quillgrid::qt
