#include "quillgrid/hosts/qt/Conversions.h"

#include <QFontInfo>
#include <QWidget>

#include <cmath>

namespace quillgrid::qt {

namespace {

constexpr double SmallestSize = 1.0;
constexpr double LargestSize = 500.0;
constexpr double SizeTolerance = 0.01;

double PointSize(const QFont& font) {
    return font.pointSizeF() > 0 ? font.pointSizeF() : QFontInfo(font).pointSizeF();
}

double SizeInRange(double size) {
    if (!(size >= SmallestSize)) return SmallestSize; // also what is not a number
    return size > LargestSize ? LargestSize : size;
}

} // namespace

QString OnOneLine(QString text) {
    for (QChar& character : text) {
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator) {
            character = QLatin1Char(' ');
        }
    }
    return text;
}

Rect OnWidget(const Rect& area, const QWidget& widget) {
    return widget.isRightToLeft() ? Mirrored(area, widget.width()) : area;
}

Point OnControl(QPointF point, const QWidget& widget) {
    const Point place = FromQPoint(point.toPoint());
    return widget.isRightToLeft() ? Point{widget.width() - 1 - place.X, place.Y} : place;
}

Font FromQFont(const QFont& font) {
    return {FromQString(font.family()), PointSize(font), font.bold(), font.italic()};
}

QFont ToQFont(const Font& font, const QFont& host) {
    QFont result = host;
    const QString family = ToQString(font.Name);
    if (!family.isEmpty() && family != host.family()) result.setFamily(family);
    if (!(std::abs(font.Size - PointSize(host)) < SizeTolerance))
        result.setPointSizeF(SizeInRange(font.Size));
    if (font.Bold != host.bold()) result.setBold(font.Bold);
    if (font.Italic != host.italic()) result.setItalic(font.Italic);
    return result;
}

} // namespace quillgrid::qt
