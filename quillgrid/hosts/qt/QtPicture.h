#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/platform/ImageSource.h"

#include <QSize>

#include <functional>
#include <utility>

class QImage;
class QPainter;
class QPalette;
class QPixmap;
class QRectF;

namespace quillgrid::qt {

/// A picture that draws itself into a rectangle at any size and density, in the colours of the palette at
/// hand. `FromImage` makes one of pixels; `grid.PaintPicture(*picture, {})` shows it.
class QUILLGRID_EXPORT QtPicture : public Picture {
public:
    using Drawing = std::function<void(QPainter&, const QRectF&, const QPalette&)>;

    explicit QtPicture(Drawing drawing, QSize naturalSize = {16, 16})
        : drawing_(std::move(drawing)), naturalSize_(naturalSize) {}

    /// The image keeps its colours; its natural size counts its density.
    static PictureReference FromImage(const QImage& image);
    static PictureReference FromPixmap(const QPixmap& pixmap);

    /// Logical pixels.
    QSize NaturalSize() const { return naturalSize_; }

    void Draw(QPainter& painter, const QRectF& area, const QPalette& palette) const {
        if (drawing_) drawing_(painter, area, palette);
    }

private:
    Drawing drawing_;
    QSize naturalSize_;
};

} // namespace quillgrid::qt
