// The small steps between the control's values and Qt's.
#pragma once

#include "quillgrid/base/Rect.h"
#include "quillgrid/platform/Font.h"

#include <QFont>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QString>

#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>

class QWidget;

namespace quillgrid::qt {

inline QString ToQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}
inline std::string FromQString(const QString& text) {
    return text.toStdString();
}

/// Control characters and line breaks as blanks: a tab or line break in a value would leave its line.
QString OnOneLine(QString text);

/// Sides that lie in the wrong order give an empty rectangle.
inline QRect ToQRect(const Rect& area) {
    return area.IsEmpty() ? QRect() : QRect(area.Left, area.Top, area.Width(), area.Height());
}
inline Rect FromQRect(const QRect& area) {
    return {area.left(), area.top(), area.left() + area.width(), area.top() + area.height()};
}
inline Point FromQPoint(QPoint point) {
    return {point.x(), point.y()};
}

/// What a host draws may lie anywhere.
inline constexpr std::int64_t Farthest = 1'000'000'000;

/// The same place counted from the other side of a surface: there and back again.
inline Rect Mirrored(const Rect& area, std::int32_t width) {
    const auto across = [width](std::int32_t x) {
        return static_cast<std::int32_t>(
            std::clamp<std::int64_t>(std::int64_t{width} - x, -Farthest, Farthest));
    };
    return {across(area.Right), area.Top, across(area.Left), area.Bottom};
}

/// The control lays out and counts from the left; a widget that runs from right to left shows it mirrored.
Rect OnWidget(const Rect& area, const QWidget& widget);
/// The control's point under a point of the widget.
Point OnControl(QPointF point, const QWidget& widget);

/// The description of a Qt font, its size in points however it was set.
Font FromQFont(const QFont& font);
/// The font meant by a description. What the description leaves as it is in `host` (family, size, hinting)
/// is taken from there, so that a form keeps the exact font of its window.
QFont ToQFont(const Font& font, const QFont& host);

} // namespace quillgrid::qt
