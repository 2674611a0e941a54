#include "quillgrid/hosts/qt/GlyphDrawing.h"

#include "quillgrid/hosts/qt/DeviceGrid.h"
#include "quillgrid/resources/Glyphs.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace quillgrid::qt {

namespace {

constexpr double PointsPerPixel = 10.0;

/// Upright rectangles up to this size are dots, which must all be alike.
constexpr int LargestDot = 20;

double Whole(double place) {
    return std::floor(place + 0.5);
}

bool IsDot(GlyphContour contour) {
    return contour.size() == 4 && contour[0].Y == contour[1].Y && contour[2].X == contour[1].X &&
           contour[2].X - contour[0].X <= LargestDot && contour[2].Y - contour[0].Y <= LargestDot;
}

QPolygonF FittedDot(GlyphContour contour, double scale) {
    const auto length = [scale](int tenths) { return std::max(1.0, std::floor(tenths * scale + 0.25)); };
    const QPointF corner(Whole(contour[0].X * scale), Whole(contour[0].Y * scale));
    return QPolygonF(
        QRectF(corner, QSizeF(length(contour[2].X - contour[0].X), length(contour[2].Y - contour[0].Y))));
}

/// The corners of one contour, in device pixels. What runs straight across or down ends on whole pixels, or
/// it would be blurred; slanting sides stay where they are.
QPolygonF Fitted(GlyphContour contour, double scale) {
    const std::size_t count = contour.size();
    const auto place = [scale](std::int16_t tenths, bool straight) {
        return straight ? Whole(tenths * scale) : tenths * scale;
    };
    QPolygonF polygon;
    for (std::size_t i = 0; i < count; ++i) {
        const GlyphPoint before = contour[(i + count - 1) % count];
        const GlyphPoint after = contour[(i + 1) % count];
        const GlyphPoint here = contour[i];
        polygon << QPointF(place(here.X, here.X == before.X || here.X == after.X),
                           place(here.Y, here.Y == before.Y || here.Y == after.Y));
    }
    return polygon;
}

QPainterPath OutlineOf(Glyph glyph, double scale) {
    QPainterPath path; // odd-even is its own rule of filling
    for (const GlyphContour contour : ContoursOf(glyph)) {
        path.addPolygon(IsDot(contour) ? FittedDot(contour, scale) : Fitted(contour, scale));
        path.closeSubpath();
    }
    return path;
}

void DrawPixels(QPainter& painter, const DeviceGrid& grid, QPoint corner, Glyph glyph, const QColor& ink) {
    const GlyphRows& rows = RowsOf(glyph);
    for (int y = 0; y < GlyphSize; ++y) {
        const std::string_view row = rows[static_cast<std::size_t>(y)];
        for (std::size_t from = row.find('#'); from != std::string_view::npos;) {
            const std::size_t to = std::min(row.find_first_not_of('#', from), row.size());
            const QRect run(corner + QPoint(static_cast<int>(from), y),
                            QSize(static_cast<int>(to - from), 1));
            painter.fillRect(grid.ToPainter(run), ink);
            from = row.find('#', to);
        }
    }
}

} // namespace

void DrawGlyphAt(QPainter& painter, const DeviceGrid& grid, const QRect& area, Glyph glyph,
                 const QColor& ink) {
    const int size = static_cast<int>(std::lround(GlyphSize * grid.Scale()));
    const QPoint corner(area.left() + (area.width() - size) / 2, area.top() + (area.height() - size) / 2);
    painter.save();
    painter.setClipRect(grid.ToPainter(area), Qt::IntersectClip);
    if (size == GlyphSize) {
        DrawPixels(painter, grid, corner, glyph, ink);
    } else {
        const QRectF pixel = grid.ToPainter({corner, QSize(1, 1)});
        painter.setRenderHint(QPainter::Antialiasing);
        painter.translate(pixel.topLeft());
        painter.scale(pixel.width(), pixel.height());
        painter.fillPath(OutlineOf(glyph, grid.Scale() / PointsPerPixel), ink);
    }
    painter.restore();
}

} // namespace quillgrid::qt
