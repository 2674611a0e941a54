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
    Watch(widget_.window());
    Entered();
}

void FocusTracker::Leave() {
    if (!entered_) return;
    entered_ = false;
    Watch(nullptr);
    leaving_ = true;
    const QPointer<FocusTracker> alive(this);
    Left();
    if (alive) leaving_ = false;
}

void FocusTracker::Watch(QWidget* window) {
    if (window_) window_->removeEventFilter(this);
    window_ = window;
    if (window_) window_->installEventFilter(this);
}

// Once hidden, a window could not say any more why a text was refused.
bool FocusTracker::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Close || watched != window_ || MayClose()) return false;
    event->ignore();
    return true;
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
