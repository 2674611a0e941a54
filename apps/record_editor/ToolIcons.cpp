#include "apps/record_editor/ToolIcons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace quillgrid::editor {
namespace {

// All shapes live on a field of 20 by 20.
constexpr int Field = 20;

void AddTriangle(QPainterPath& path, qreal back, qreal tip) {
    path.moveTo(back, 4);
    path.lineTo(tip, 10);
    path.lineTo(back, 16);
    path.closeSubpath();
}

QPainterPath Arrow(bool forward, bool bar) {
    QPainterPath path;
    if (forward)
        AddTriangle(path, bar ? 4 : 6, bar ? 13 : 15);
    else
        AddTriangle(path, bar ? 16 : 14, bar ? 7 : 5);
    if (bar) path.addRect(forward ? 14 : 4, 4, 2, 12);
    return path;
}

QPainterPath Plus() {
    QPainterPath path;
    path.addRect(9, 4, 2, 12);
    path.addRect(4, 9, 5, 2);
    path.addRect(11, 9, 5, 2);
    return path;
}

QPainterPath Disk() {
    QPainterPath path;
    path.addRoundedRect(3, 3, 14, 14, 1.5, 1.5);
    path.addRect(6, 4, 7, 5); // the shutter and the label stay open
    path.addRect(5, 11, 10, 5);
    return path;
}

QPainterPath Curl() {
    QPainterPath arc;
    arc.arcMoveTo(4.5, 4.5, 11, 11, 150);
    arc.arcTo(4.5, 4.5, 11, 11, 150, -270);
    QPainterPathStroker pen;
    pen.setWidth(2);
    QPainterPath path = pen.createStroke(arc);
    path.moveTo(2, 3);
    path.lineTo(3, 9.5);
    path.lineTo(9, 7.5);
    path.closeSubpath();
    path.setFillRule(Qt::WindingFill);
    return path;
}

QPainterPath ShapeOf(ToolIcon icon) {
    switch (icon) {
    case ToolIcon::First: return Arrow(false, true);
    case ToolIcon::Previous: return Arrow(false, false);
    case ToolIcon::Next: return Arrow(true, false);
    case ToolIcon::Last: return Arrow(true, true);
    case ToolIcon::New: return Plus();
    case ToolIcon::Save: return Disk();
    case ToolIcon::Revert: break;
    }
    return Curl();
}

QPixmap Draw(const QPainterPath& shape, const QColor& colour, int scale) {
    QPixmap pixmap(Field * scale, Field * scale);
    pixmap.setDevicePixelRatio(scale);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(shape, colour);
    return pixmap;
}

} // namespace

QIcon MakeToolIcon(ToolIcon icon, const QPalette& palette) {
    const QPainterPath shape = ShapeOf(icon);
    QIcon made;
    for (const int scale : {1, 2, 3}) {
        made.addPixmap(Draw(shape, palette.color(QPalette::Active, QPalette::ButtonText), scale),
                       QIcon::Normal);
        made.addPixmap(Draw(shape, palette.color(QPalette::Disabled, QPalette::ButtonText), scale),
                       QIcon::Disabled);
    }
    return made;
}

} // namespace quillgrid::editor
