#include "quillgrid/hosts/qt/QtPadWindow.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>

namespace quillgrid::qt {

QtPadWindow::QtPadWindow(QWidget& pad, const QWidget& owner) : pad_(pad), owner_(owner) {
    pad.setWindowFlags(Qt::ToolTip | Qt::FramelessWindowHint);
    pad.setAttribute(Qt::WA_ShowWithoutActivating);
    pad.setAttribute(Qt::WA_X11DoNotAcceptFocus);
    pad.setAttribute(Qt::WA_QuitOnClose, false);
    pad.setFocusPolicy(Qt::NoFocus);
}

/// What the pad inherited while it stood inside the control it has to be told as a window.
void QtPadWindow::Detach(const Rect& value) {
    const QRect inside = ToQRect(OnWidget(value, owner_));
    value_ = {owner_.mapToGlobal(inside.topLeft()), inside.size()};
    pad_.setPalette(owner_.palette());
    pad_.setLayoutDirection(owner_.layoutDirection());
    pad_.setLocale(owner_.locale());
    if (!pad_.windowHandle()) pad_.winId();
    pad_.windowHandle()->setTransientParent(owner_.window()->windowHandle());
    Opens();
}

Point QtPadWindow::ToScreen(Point onControl) const {
    const QPoint place = owner_.mapToGlobal(QPoint(onControl.X, onControl.Y));
    return {place.x(), place.y()};
}

std::int32_t QtPadWindow::Width() const {
    return pad_.width();
}

void QtPadWindow::ShowAt(Point corner) {
    pad_.move(corner.X, corner.Y);
    pad_.show();
    BringToFront();
}

// A form that runs from right to left is counted from the left all the same: there the pad stands at the
// other edge of the value.
void QtPadWindow::BringToFront() {
    const QScreen* screen = QGuiApplication::screenAt(value_.center());
    if (!screen) screen = owner_.screen();
    QPoint wanted = pad_.pos();
    if (owner_.isRightToLeft()) {
        const int middle = owner_.mapToGlobal(QPoint(0, 0)).x() * 2 + owner_.width();
        wanted.setX(middle - wanted.x() - pad_.width());
    }
    pad_.move(PlaceFor(wanted, pad_.size(), value_, screen->availableGeometry()));
    pad_.raise();
}

QPoint QtPadWindow::PlaceFor(QPoint wanted, QSize size, const QRect& value, const QRect& screen) {
    const int right = std::max(screen.left(), screen.right() + 1 - size.width());
    const int x = std::clamp(wanted.x(), screen.left(), right);
    const int below = screen.bottom() + 1 - wanted.y();
    const int above = value.top() - screen.top();
    const bool flips = size.height() > below && above > below;
    const int lowest = std::max(screen.top(), screen.bottom() + 1 - size.height());
    return {x, std::clamp(flips ? value.top() - size.height() : wanted.y(), screen.top(), lowest)};
}

bool QtPadWindow::IsShown() const {
    return pad_.isVisible();
}

void QtPadWindow::Hide() {
    pad_.hide();
    Closes();
}

} // namespace quillgrid::qt
