#include "quillgrid/hosts/qt/PadWidget.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtCanvas.h"

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
      theme_(*this) {
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
}

// A press is used up here: it must not go on to the control behind.
void PadWidget::mousePressEvent(QMouseEvent* event) {
    event->accept();
    Pressed(OnControl(event->position(), *this), event->button());
}

void PadWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    resting_ = QCursor::pos();
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
    if (event->button() == Qt::LeftButton) Released(OnControl(event->position(), *this));
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
