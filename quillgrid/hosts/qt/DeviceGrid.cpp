#include "quillgrid/hosts/qt/DeviceGrid.h"

#include <QPainter>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace quillgrid::qt {

namespace {

/// Beyond these device pixels nothing is seen, and integers would overflow.
constexpr double Farthest = 1e8;
constexpr double AlmostWhole = 1e-6;
/// From this part of a pixel on lines are a pixel thicker: 1.75 gives two.
constexpr double NearlyOneMore = 0.25;

int Nearest(double place) {
    return static_cast<int>(std::floor(std::clamp(place, -Farthest, Farthest) + 0.5));
}

bool IsWhole(double number) {
    return std::abs(number - std::round(number)) < AlmostWhole;
}

bool Holds(const std::vector<std::int32_t>& places, std::int32_t place) {
    return std::find(places.begin(), places.end(), place) != places.end();
}

} // namespace

DeviceGrid::DeviceGrid(const QPainter& painter) {
    const QTransform& device = painter.deviceTransform();
    if (device.type() > QTransform::TxScale || device.m11() <= 0 || device.m22() <= 0) return;
    scaleX_ = device.m11();
    scaleY_ = device.m22();
    left_ = device.dx();
    top_ = device.dy();
    hairline_ = std::max(1, static_cast<int>(std::min(scaleX_, Farthest) + NearlyOneMore));
    fractional_ = !IsWhole(scaleX_) || !IsWhole(scaleY_);
}

int DeviceGrid::Left(std::int32_t x) const {
    return Nearest(x * scaleX_ + left_);
}

int DeviceGrid::Top(std::int32_t y) const {
    return Nearest(y * scaleY_ + top_);
}

QRect DeviceGrid::ToDevice(const Rect& area) const {
    if (area.IsEmpty()) return {};
    QPoint from(Left(area.Left), Top(area.Top));
    if (fractional_ && Holds(columns_, area.Left - 1)) from.setX(Left(area.Left - 1) + hairline_);
    if (fractional_ && Holds(rows_, area.Top - 1)) from.setY(Top(area.Top - 1) + hairline_);
    return {from, QPoint(Left(area.Right) - 1, Top(area.Bottom) - 1)};
}

QRect DeviceGrid::LineToDevice(const Rect& area) {
    QRect line = ToDevice(area);
    if (area.Width() == 1) {
        line.setLeft(Left(area.Left));
        line.setWidth(hairline_);
        if (fractional_) columns_.push_back(area.Left);
    } else {
        line.setTop(Top(area.Top));
        line.setHeight(hairline_);
        if (fractional_) rows_.push_back(area.Top);
    }
    return line;
}

QRectF DeviceGrid::ToPainter(const QRect& device) const {
    return {(device.x() - left_) / scaleX_, (device.y() - top_) / scaleY_, device.width() / scaleX_,
            device.height() / scaleY_};
}

} // namespace quillgrid::qt
