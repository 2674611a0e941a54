// Every drawing stands on a field of 16 by 16 units, which is stretched to the area asked for.
#include "quillgrid/hosts/qt/IconDrawings.h"

#include "quillgrid/hosts/qt/QtTheme.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace quillgrid::qt {

namespace {

constexpr double Field = 16.0;

/// The colours of one drawing: they keep their hue and change their lightness with the palette.
class Brushes {
public:
    explicit Brushes(const QPalette& palette)
        : dark_(IsDark(palette)),
          paper_(palette.color(QPalette::Base)),
          text_(palette.color(QPalette::Text)),
          highlight_(palette.color(QPalette::Highlight)),
          onHighlight_(palette.color(QPalette::HighlightedText)) {}

    QColor Paper() const { return paper_; }
    QColor Ink() const { return Mixed(paper_, text_, 0.72); }
    QColor Soft() const { return Mixed(paper_, text_, 0.45); }
    QColor Highlight() const { return highlight_; }
    QColor OnHighlight() const { return onHighlight_; }
    QColor Blue() const { return dark_ ? QColor(116, 176, 255) : QColor(37, 99, 201); }
    QColor Green() const { return dark_ ? QColor(110, 205, 140) : QColor(33, 140, 80); }
    QColor Gold() const { return dark_ ? QColor(240, 196, 90) : QColor(224, 164, 32); }
    QColor Rose() const { return dark_ ? QColor(240, 140, 170) : QColor(196, 64, 112); }

private:
    bool dark_;
    QColor paper_;
    QColor text_;
    QColor highlight_;
    QColor onHighlight_;
};

/// Maps the field onto the area for as long as it lives.
class FieldScope {
public:
    FieldScope(QPainter& painter, const QRectF& area) : painter_(painter) {
        painter_.save();
        painter_.translate(area.topLeft());
        painter_.scale(area.width() / Field, area.height() / Field);
        painter_.setPen(Qt::NoPen);
    }
    ~FieldScope() { painter_.restore(); }
    FieldScope(const FieldScope&) = delete;
    FieldScope& operator=(const FieldScope&) = delete;

private:
    QPainter& painter_;
};

using Draw = void (*)(QPainter&, const Brushes&);

template <Draw Drawing>
void OnField(QPainter& painter, const QRectF& area, const QPalette& palette) {
    const FieldScope scope(painter, area);
    Drawing(painter, Brushes(palette));
}

QPen Stroke(const QColor& colour, double width) {
    return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void Filled(QPainter& painter, const QColor& colour) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
}

void Outlined(QPainter& painter, const QColor& colour, double width = 1.2) {
    painter.setPen(Stroke(colour, width));
    painter.setBrush(Qt::NoBrush);
}

void Checked(QPainter& painter, const Brushes& colours) {
    Filled(painter, colours.Highlight());
    painter.drawRoundedRect(QRectF(1, 1, 14, 14), 3, 3);
    Outlined(painter, colours.OnHighlight(), 2.0);
    painter.drawPolyline(QPolygonF({{4.2, 8.3}, {7.0, 11.0}, {11.8, 5.2}}));
}

void Unchecked(QPainter& painter, const Brushes& colours) {
    painter.setPen(Stroke(colours.Soft(), 1.2));
    painter.setBrush(colours.Paper());
    painter.drawRoundedRect(QRectF(1.6, 1.6, 12.8, 12.8), 2.6, 2.6);
}

void Person(QPainter& painter, const QColor& colour, double shoulder) {
    Filled(painter, colour);
    painter.drawEllipse(QRectF(5, 1.5, 6, 6));
    QPainterPath body(QPointF(8 - shoulder, 14.5));
    body.cubicTo(QPointF(8 - shoulder, 7.4), QPointF(8 + shoulder, 7.4), QPointF(8 + shoulder, 14.5));
    body.closeSubpath();
    painter.drawPath(body);
}

void Man(QPainter& painter, const Brushes& colours) {
    Person(painter, colours.Blue(), 5.5);
}

void Woman(QPainter& painter, const Brushes& colours) {
    Filled(painter, Mixed(colours.Rose(), colours.Ink(), 0.45));
    painter.drawRoundedRect(QRectF(4, 1, 8, 8.5), 4, 4); // hair
    Person(painter, colours.Rose(), 5.2);
    Filled(painter, Mixed(colours.Rose(), colours.Paper(), 0.7));
    painter.drawEllipse(QRectF(5.6, 2.6, 4.8, 5));
}

void Company(QPainter& painter, const Brushes& colours) {
    Filled(painter, colours.Soft());
    painter.drawRect(QRectF(2, 6, 5, 9));
    Filled(painter, colours.Blue());
    painter.drawRect(QRectF(6, 1.5, 8, 13.5));
    Filled(painter, colours.Paper());
    for (int row = 0; row < 4; ++row) {
        painter.drawRect(QRectF(7.5, 3.2 + row * 2.8, 1.8, 1.5));
        painter.drawRect(QRectF(10.7, 3.2 + row * 2.8, 1.8, 1.5));
    }
}

void Coins(QPainter& painter, const Brushes& colours) {
    const QColor rim = Mixed(colours.Gold(), Qt::black, 0.35);
    painter.setPen(Stroke(rim, 0.9));
    painter.setBrush(colours.Gold());
    for (int coin = 0; coin < 4; ++coin)
        painter.drawEllipse(QRectF(2, 10.2 - coin * 2.3, 12, 4.6));
}

void EuroCoin(QPainter& painter, const Brushes& colours) {
    painter.setPen(Stroke(Mixed(colours.Gold(), Qt::black, 0.35), 0.9));
    painter.setBrush(colours.Gold());
    painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
    Outlined(painter, QColor(70, 48, 0), 1.4);
    painter.drawArc(QRectF(5.6, 4.6, 6.4, 6.8), 55 * 16, 250 * 16);
    painter.drawLine(QPointF(4.2, 7.2), QPointF(8.6, 7.2));
    painter.drawLine(QPointF(4.2, 9.0), QPointF(8.2, 9.0));
}

QPainterPath Receiver() {
    QPainterPath path(QPointF(4.6, 1.6));
    path.cubicTo(QPointF(1.4, 2.4), QPointF(1.6, 5.6), QPointF(5.4, 9.9));
    path.cubicTo(QPointF(9.6, 14.6), QPointF(13.2, 15.0), QPointF(14.4, 11.6));
    path.lineTo(QPointF(11.2, 9.2));
    path.lineTo(QPointF(9.4, 10.6));
    path.cubicTo(QPointF(7.8, 9.6), QPointF(6.6, 8.2), QPointF(5.8, 6.4));
    path.lineTo(QPointF(7.0, 4.8));
    path.closeSubpath();
    return path;
}

void Phone(QPainter& painter, const Brushes& colours) {
    Filled(painter, colours.Green());
    painter.drawPath(Receiver());
}

void RingingPhone(QPainter& painter, const Brushes& colours) {
    Phone(painter, colours);
    Outlined(painter, colours.Blue());
    painter.drawArc(QRectF(6.4, 3.4, 5.2, 5.2), 0, 90 * 16);
    painter.drawArc(QRectF(4.0, 1.0, 10, 10), 0, 90 * 16);
}

void Printer(QPainter& painter, const Brushes& colours) {
    painter.setPen(Stroke(colours.Ink(), 1.1));
    painter.setBrush(colours.Paper());
    painter.drawRect(QRectF(4.5, 1.5, 7, 5));
    painter.setBrush(colours.Soft());
    painter.drawRoundedRect(QRectF(1.5, 6, 13, 6), 1.2, 1.2);
    painter.setBrush(colours.Paper());
    painter.drawRect(QRectF(4.5, 9.8, 7, 4.7));
    Filled(painter, colours.Green());
    painter.drawEllipse(QRectF(11.6, 7.2, 1.6, 1.6));
}

void Globe(QPainter& painter, const Brushes& colours) {
    Outlined(painter, colours.Blue(), 1.2);
    painter.drawEllipse(QRectF(1.6, 1.6, 12.8, 12.8));
    painter.drawEllipse(QRectF(5.2, 1.6, 5.6, 12.8));
    painter.drawLine(QPointF(1.8, 8), QPointF(14.2, 8));
    painter.drawLine(QPointF(3, 4.6), QPointF(13, 4.6));
    painter.drawLine(QPointF(3, 11.4), QPointF(13, 11.4));
}

void Envelope(QPainter& painter, const Brushes& colours) {
    painter.setPen(Stroke(colours.Blue(), 1.2));
    painter.setBrush(colours.Paper());
    painter.drawRoundedRect(QRectF(1.6, 3.4, 12.8, 9.4), 1.4, 1.4);
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({{2.2, 4.4}, {8, 9.2}, {13.8, 4.4}}));
}

void Folder(QPainter& painter, const Brushes& colours) {
    Filled(painter, Mixed(colours.Gold(), Qt::black, 0.22));
    painter.drawRoundedRect(QRectF(1.4, 2.8, 6.6, 4), 1.2, 1.2);
    painter.drawRoundedRect(QRectF(1.4, 4.2, 13.2, 9.4), 1.2, 1.2);
    Filled(painter, colours.Gold());
    painter.drawRoundedRect(QRectF(1.4, 6, 13.2, 7.6), 1.2, 1.2);
}

void Computer(QPainter& painter, const Brushes& colours) {
    painter.setPen(Stroke(colours.Ink(), 1.2));
    painter.setBrush(Mixed(colours.Paper(), colours.Blue(), 0.35));
    painter.drawRoundedRect(QRectF(1.6, 2, 12.8, 8.8), 1.2, 1.2);
    Filled(painter, colours.Ink());
    painter.drawRect(QRectF(6.6, 10.8, 2.8, 2.2));
    painter.drawRoundedRect(QRectF(4, 12.6, 8, 1.6), 0.8, 0.8);
}

void Letters(QPainter& painter, const Brushes& colours) {
    Outlined(painter, colours.Soft(), 1.7);
    painter.drawLine(QPointF(1.8, 3), QPointF(9.2, 3));
    painter.drawLine(QPointF(5.5, 3), QPointF(5.5, 12));
    Outlined(painter, colours.Blue(), 1.9);
    painter.drawLine(QPointF(7.4, 6.8), QPointF(14.2, 6.8));
    painter.drawLine(QPointF(10.8, 6.8), QPointF(10.8, 14));
}

void Padlock(QPainter& painter, const Brushes& colours) {
    Outlined(painter, colours.Soft(), 1.6);
    painter.drawArc(QRectF(4.6, 1.8, 6.8, 8.4), 0, 180 * 16);
    painter.drawLine(QPointF(4.6, 6), QPointF(4.6, 8));
    painter.drawLine(QPointF(11.4, 6), QPointF(11.4, 8));
    Filled(painter, colours.Gold());
    painter.drawRoundedRect(QRectF(2.8, 7, 10.4, 7.6), 1.4, 1.4);
    Filled(painter, QColor(70, 48, 0));
    painter.drawEllipse(QRectF(7, 9.2, 2, 2));
    painter.drawRect(QRectF(7.5, 10.4, 1, 2.2));
}

} // namespace

const std::array<IconDrawing, IconCount> Icons{{
    {"checked", OnField<Checked>},
    {"unchecked", OnField<Unchecked>},
    {"woman", OnField<Woman>},
    {"man", OnField<Man>},
    {"company", OnField<Company>},
    {"money", OnField<Coins>},
    {"euro", OnField<EuroCoin>},
    {"phone", OnField<Phone>},
    {"phone2", OnField<RingingPhone>},
    {"printer", OnField<Printer>},
    {"world", OnField<Globe>},
    {"email", OnField<Envelope>},
    {"folder1", OnField<Folder>},
    {"computer", OnField<Computer>},
    {"truetype", OnField<Letters>},
    {"lock", OnField<Padlock>},
}};

} // namespace quillgrid::qt
