#include "quillgrid/hosts/qt/QtPicture.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <cmath>
#include <memory>

namespace quillgrid::qt {

namespace {

/// Whether each pixel of the image becomes a block of whole pixels: smoothing would only blur it then, and
/// mix in what lies beside a part that is drawn alone.
bool FillsWholePixels(const QImage& image, const QRectF& area, const QTransform& device) {
    const auto isWhole = [](double scale) {
        return scale >= 1 && std::abs(scale - std::round(scale)) < 1e-6;
    };
    return isWhole(device.m11() * area.width() / image.width()) &&
           isWhole(device.m22() * area.height() / image.height());
}

} // namespace

PictureReference QtPicture::FromImage(const QImage& image) {
    const auto draw = [image](QPainter& painter, const QRectF& area, const QPalette&) {
        if (image.isNull()) return;
        painter.setRenderHint(QPainter::SmoothPixmapTransform,
                              !FillsWholePixels(image, area, painter.deviceTransform()));
        painter.drawImage(area, image);
    };
    return std::make_shared<QtPicture>(draw, image.deviceIndependentSize().toSize());
}

PictureReference QtPicture::FromPixmap(const QPixmap& pixmap) {
    return FromImage(pixmap.toImage());
}

} // namespace quillgrid::qt
