#pragma once

#include "quillgrid/platform/ImageSource.h"

#include <QSize>

#include <functional>
#include <utility>

class QPainter;
class QPalette;
class QRectF;

namespace quillgrid::qt {

/// A picture that draws itself at any size and density, in the colours of the palette at hand.
class QtPicture : public Picture {
public:
    using Drawing = std::function<void(QPainter&, const QRectF&, const QPalette&)>;

    explicit QtPicture(Drawing drawing, QSize naturalSize = {16, 16})
        : drawing_(std::move(drawing)), naturalSize_(naturalSize) {}

    /// Logical pixels.
    QSize NaturalSize() const { return naturalSize_; }

    void Draw(QPainter& painter, const QRectF& area, const QPalette& palette) const {
        drawing_(painter, area, palette);
    }

private:
    Drawing drawing_;
    QSize naturalSize_;
};

} // namespace quillgrid::qt
