#include "quillgrid/hosts/designer/WidgetIcons.h"

#include <QPainter>
#include <QPixmap>

namespace quillgrid::designer {

namespace {

const QColor Outline(96, 105, 116);
const QColor Paper(250, 250, 250);
const QColor Accent(48, 110, 190);
const QColor Mark(206, 64, 58);

constexpr int Side = 16; ///< units in which the icons are drawn

void DrawSheet(QPainter& painter) {
    painter.setPen(Outline);
    painter.setBrush(Paper);
    painter.drawRect(QRectF(1.5, 1.5, 13, 13));
}

/// Labels and values; the current row has a coloured label.
void DrawForm(QPainter& painter) {
    DrawSheet(painter);
    painter.fillRect(QRectF(2, 2, 5, 4), Accent);
    for (const int row : {6, 10})
        painter.drawLine(QPointF(1.5, row), QPointF(14.5, row));
    painter.drawLine(QPointF(7, 1.5), QPointF(7, 14.5));
    for (const int row : {4, 8, 12}) {
        painter.fillRect(QRectF(8.5, row - 0.5, row == 8 ? 3 : 4.5, 1), Outline);
        if (row != 4) painter.fillRect(QRectF(3, row - 0.5, 2.5, 1), Outline);
    }
}

/// A month; one day is a holiday.
void DrawCalendar(QPainter& painter) {
    DrawSheet(painter);
    painter.fillRect(QRectF(2, 2, 12, 3), Accent);
    for (int week = 0; week < 3; ++week) {
        for (int day = 0; day < 4; ++day)
            painter.fillRect(QRectF(3 + 2.75 * day, 6.5 + 2.75 * week, 1.75, 1.75),
                             week == 1 && day == 2 ? Mark : Outline);
    }
}

/// A display over keys; the last one computes.
void DrawCalculator(QPainter& painter) {
    painter.setPen(Outline);
    painter.setBrush(Paper);
    painter.drawRect(QRectF(2.5, 1.5, 11, 13));
    painter.fillRect(QRectF(4, 3, 8, 3), Accent);
    for (int line = 0; line < 3; ++line) {
        for (int key = 0; key < 3; ++key)
            painter.fillRect(QRectF(4 + 3 * key, 7.25 + 2.5 * line, 2, 1.5),
                             line == 2 && key == 2 ? Mark : Outline);
    }
}

QIcon Drawn(void (*draw)(QPainter&)) {
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64}) {
        QPixmap picture(size, size);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(size / double{Side}, size / double{Side});
        draw(painter);
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace

QIcon FormIcon() {
    return Drawn(DrawForm);
}
QIcon CalendarIcon() {
    return Drawn(DrawCalendar);
}
QIcon CalculatorIcon() {
    return Drawn(DrawCalculator);
}

} // namespace quillgrid::designer
