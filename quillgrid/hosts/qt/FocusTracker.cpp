#include "quillgrid/hosts/qt/FocusTracker.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace quillgrid::qt {

FocusTracker::FocusTracker(QWidget& widget) : widget_(widget) {
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Changed(now); });
}

void FocusTracker::Changed(const QWidget* now) {
    if (now && (now == &widget_ || widget_.isAncestorOf(now))) return Enter();
    const bool otherWindow = now && now->window() != widget_.window();
    const bool inactive = !now && QApplication::activeWindow() != widget_.window();
    if (!otherWindow && !inactive) Leave();
}

void FocusTracker::Enter() {
    if (entered_) return;
    entered_ = true;
    Entered();
}

void FocusTracker::Leave() {
    if (!entered_) return;
    entered_ = false;
    leaving_ = true;
    const QPointer<FocusTracker> alive(this);
    Left();
    if (alive) leaving_ = false;
}

// A control that takes the focus back while another one is receiving it would leave both confused.
void FocusTracker::Request() {
    if (leaving_) {
        QMetaObject::invokeMethod(
            this, [this] { TakeFocus(); }, Qt::QueuedConnection);
    } else {
        TakeFocus();
    }
}

void FocusTracker::TakeFocus() {
    if (widget_.isVisible()) widget_.setFocus(Qt::OtherFocusReason);
}

} // namespace quillgrid::qt
