#pragma once

#include "quillgrid/base/Rect.h"

#include <QRect>
#include <QRectF>

#include <cstdint>
#include <vector>

class QPainter;

namespace quillgrid::qt {

/// Where logical pixels fall on the pixels of the device. At 1.5 device pixels to a logical one every second
/// line would come out twice as thick as its neighbours: areas end on whole device pixels here, and lines all
/// have the same thickness.
class DeviceGrid {
public:
    /// Of the painter as it is transformed now.
    explicit DeviceGrid(const QPainter& painter);

    double Scale() const { return scaleX_; }
    bool IsFractional() const { return fractional_; }
    /// Device pixels of a line one logical pixel wide.
    int Hairline() const { return hairline_; }

    /// The area in device pixels. One that begins beside a line begins where that line really ends.
    QRect ToDevice(const Rect& area) const;
    /// The device pixels of a line; `area` is one logical pixel wide or high.
    QRect LineToDevice(const Rect& area);
    /// In the painter's coordinates, for drawing.
    QRectF ToPainter(const QRect& device) const;

private:
    int Left(std::int32_t x) const;
    int Top(std::int32_t y) const;

    double scaleX_ = 1.0;
    double scaleY_ = 1.0;
    double left_ = 0.0;
    double top_ = 0.0;
    int hairline_ = 1;
    bool fractional_ = false;
    // Where lines were drawn; only kept at fractional scales.
    std::vector<std::int32_t> columns_;
    std::vector<std::int32_t> rows_;
};

} // namespace quillgrid::qt
