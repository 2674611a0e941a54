#include "quillgrid/hosts/qt/ErrorBubble.h"

#include "quillgrid/hosts/qt/QtTheme.h"

#include <QAccessible>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace quillgrid::qt {

namespace {

constexpr int Tip = 6; ///< height of the pointer to the cell
constexpr int TipIndent = 12;
constexpr int Margin = 8; ///< around the text
constexpr int Sign = 16;  ///< the round sign before the text
constexpr int Gap = 4;    ///< to the sides of the control
constexpr double Corner = 5.0;
constexpr int WidestText = 420;
const QColor LightSignal(201, 42, 42);
const QColor DarkSignal(255, 135, 135);

QPainterPath Outline(const QRectF& body, double tipX, bool tipAbove) {
    QPainterPath path;
    path.addRoundedRect(body, Corner, Corner);
    const double base = tipAbove ? body.top() + 1 : body.bottom() - 1;
    const double point = tipAbove ? body.top() - Tip : body.bottom() + Tip;
    QPainterPath tip;
    tip.moveTo(tipX - Tip, base);
    tip.lineTo(tipX, point);
    tip.lineTo(tipX + Tip, base);
    tip.closeSubpath();
    return path.united(tip);
}

/// A part of the body, seen from the side where the text begins.
QRectF Facing(QRectF part, const QRectF& body, Qt::LayoutDirection direction) {
    if (direction == Qt::RightToLeft) part.moveRight(body.left() + body.right() - part.left());
    return part;
}

void DrawSign(QPainter& painter, const QRectF& area, const QColor& colour, const QColor& paper) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    painter.drawEllipse(area);
    painter.setBrush(paper);
    const QPointF centre = area.center();
    painter.drawRoundedRect(QRectF(centre.x() - 1, centre.y() - 4.5, 2, 5.5), 1, 1);
    painter.drawEllipse(QRectF(centre.x() - 1.1, centre.y() + 2.2, 2.2, 2.2));
}

} // namespace

ErrorBubble::ErrorBubble(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    timer_.setSingleShot(true);
    connect(&timer_, &QTimer::timeout, this, &ErrorBubble::Dismiss);
    hide();
}

void ErrorBubble::Say(const QString& text, const QRect& value, int milliseconds) {
    if (text.isEmpty() || value.isEmpty()) return Dismiss();
    text_ = text;
    setAccessibleName(text);
    PointAt(value);
    raise();
    show();
    update();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
    if (milliseconds > 0) {
        timer_.start(milliseconds);
    } else {
        timer_.stop();
    }
}

QSize ErrorBubble::SizeFor(int width) const {
    const int around = 3 * Margin + Sign;
    const QRect room(0, 0, std::clamp(width - around, 1, WidestText), 10'000);
    const QRect text = fontMetrics().boundingRect(room, Qt::TextWordWrap, text_);
    return {text.width() + around + 2, std::max(text.height(), Sign) + 2 * Margin - 2 + Tip};
}

// It stands at the beginning of the value, as the text of the value does.
void ErrorBubble::PointAt(const QRect& value) {
    const QRect room = parentWidget()->rect();
    const QSize size = SizeFor(room.width() - 2 * Gap);
    below_ = value.bottom() + size.height() <= room.bottom() || value.top() - size.height() < room.top();
    const int wanted = isRightToLeft() ? value.right() + 3 - size.width() : value.left() - 2;
    const int left = std::max(Gap, std::min(wanted, room.right() - Gap - size.width()));
    const int top = below_ ? value.bottom() - 1 : value.top() - size.height() + 2;
    const int tip = isRightToLeft() ? value.right() - TipIndent : value.left() + TipIndent;
    tipX_ = std::clamp(tip - left, 2 * Tip, std::max(2 * Tip, size.width() - 2 * Tip));
    setGeometry(QRect(QPoint(left, top), size));
}

void ErrorBubble::Dismiss() {
    timer_.stop();
    hide();
}

void ErrorBubble::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor signal = IsDark(palette()) ? DarkSignal : LightSignal;
    const QColor paper = Mixed(palette().color(QPalette::Base), signal, IsDark(palette()) ? 0.18 : 0.09);
    QRectF body = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    body.adjust(0, below_ ? Tip : 0, 0, below_ ? 0 : -Tip);
    painter.setPen(QPen(Mixed(paper, signal, 0.75), 1));
    painter.setBrush(paper);
    painter.drawPath(Outline(body, tipX_ + 0.5, below_));
    const QRectF sign(body.left() + Margin, body.center().y() - Sign / 2.0, Sign, Sign);
    const QRectF text = body.adjusted(2 * Margin + Sign, 0, -Margin / 2.0, 0);
    DrawSign(painter, Facing(sign, body, layoutDirection()), signal, paper);
    painter.setPen(Mixed(palette().color(QPalette::Text), signal, 0.35));
    painter.drawText(Facing(text, body, layoutDirection()),
                     static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft | Qt::TextWordWrap), text_);
}

} // namespace quillgrid::qt
