#include "quillgrid/hosts/qt/PadWidget.h"

#include "quillgrid/hosts/qt/AccessiblePad.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/PadNotices.h"
#include "quillgrid/hosts/qt/QtCanvas.h"

#include <QApplication>
#include <QCursor>
#include <QLocale>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>

namespace quillgrid::qt {

PadWidget::PadWidget(const QWidget& owner)
    : surface_(*this, [this](QPainter& painter, const QRect& area) { PaintInto(painter, area); }),
      site_(*this, true),
      metrics_(*this),
      theme_(*this),
      owner_(&owner) {
    AccessiblePad::Install();
    setFont(owner.font());
    setPalette(owner.palette());
    setLocale(owner.locale());
    setLayoutDirection(owner.layoutDirection());
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PadWidget::PaintInto(QPainter& painter, const QRect& area) {
    QtCanvas canvas(painter, palette(), font(), &texts_);
    if (isRightToLeft()) canvas.MirrorWithin(width());
    const Rect dirty = OnWidget(FromQRect(area), *this);
    canvas.Fill(dirty, surface_.BackColour());
    PaintPad(canvas, dirty);
}

void PadWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    surface_.Show(painter, event->region());
    if (!parentWidget() || !HasKeys()) return;
    painter.setPen(palette().color(QPalette::Highlight)); // a window of its own is where the keys go anyway
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.drawRect(rect().adjusted(1, 1, -2, -2));
}

bool PadWidget::HasKeys() const {
    const QWidget* focus = QApplication::focusWidget();
    const QWidget* holder = parentWidget() ? parentWidget() : Owner();
    return focus && holder && isVisible() && (focus == holder || holder->isAncestorOf(focus));
}

void PadWidget::Click(Point at) {
    const QPointer<PadWidget> alive(this);
    Pressed(at, Qt::LeftButton);
    if (alive) Released(at, Qt::LeftButton);
}

void PadWidget::TellSoon() {
    if (tells_ || !QAccessible::isActive()) return;
    tells_ = true;
    const auto tell = [this] {
        tells_ = false;
        PadNotices(*this).Moved();
    };
    QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
}

// A press is used up here: it must not go on to the control behind.
void PadWidget::mousePressEvent(QMouseEvent* event) {
    event->accept();
    Pressed(OnControl(event->position(), *this), event->button());
}

void PadWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    resting_ = QCursor::pos();
    PadNotices(*this).Shown();
    TellSoon();
}

void PadWidget::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    PadNotices(*this).Hidden();
}

void PadWidget::FollowFocus() {
    update();
    PadNotices(*this).Forget();
    TellSoon();
}

// A pad that opens under a resting pointer is told of it as of a move. That picks nothing.
void PadWidget::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    if (resting_ == event->globalPosition().toPoint()) return;
    resting_.reset();
    Moved(OnControl(event->position(), *this), event->buttons() != Qt::NoButton);
}

void PadWidget::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    Released(OnControl(event->position(), *this), event->button());
}

void PadWidget::leaveEvent(QEvent*) {
    Left();
}

bool PadWidget::event(QEvent* event) {
    if (event->type() == QEvent::FontChange || event->type() == QEvent::ScreenChangeInternal) {
        metrics_.Forget();
        texts_.Forget();
    }
    return QWidget::event(event);
}

} // namespace quillgrid::qt
