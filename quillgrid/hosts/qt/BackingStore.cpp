#include "quillgrid/hosts/qt/BackingStore.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtCanvas.h"

#include <QPainter>

namespace quillgrid::qt {

void BackingStore::MarkStale(const QRect& area) {
    if (!image_.isNull()) stale_ += area;
}

void BackingStore::Show(QPainter& painter, const QRegion& exposed) {
    if (image_.isNull()) return paint_(painter, exposed.boundingRect());
    BringUpToDate();
    painter.drawImage(QPoint(), image_);
}

/// The control as it is now, in an image of the widget's size and density.
void BackingStore::BringUpToDate() {
    const qreal density = widget_.devicePixelRatio();
    const QSize pixels = (QSizeF(widget_.size()) * density).toSize().expandedTo({1, 1});
    if (image_.size() != pixels || image_.devicePixelRatio() != density) {
        image_ = QImage(pixels, QImage::Format_RGB32);
        image_.setDevicePixelRatio(density);
        image_.fill(widget_.palette().color(QPalette::Window));
        stale_ = widget_.rect();
    }
    if (stale_.isEmpty()) return;
    QPainter painter(&image_);
    painter.setClipRegion(stale_);
    painter.setFont(widget_.font());
    paint_(painter, std::exchange(stale_, {}).boundingRect());
}

void BackingStore::Draw(const std::function<void(Canvas&)>& draw) {
    BringUpToDate();
    QPainter painter(&image_);
    QtCanvas canvas(painter, widget_.palette(), widget_.font());
    if (widget_.isRightToLeft()) canvas.MirrorWithin(widget_.width());
    if (clip_) canvas.SetClip(*clip_);
    draw(canvas);
    widget_.update();
}

void BackingStore::Fill(const Rect& area, Colour colour) {
    Draw([&](Canvas& canvas) { canvas.Fill(area, colour); });
}

void BackingStore::Line(Point from, Point to, Colour colour) {
    Draw([&](Canvas& canvas) { canvas.Line(from, to, colour); });
}

void BackingStore::Edge(const Rect& area, EdgeKind kind) {
    Draw([&](Canvas& canvas) { canvas.Edge(area, kind); });
}

void BackingStore::PushButton(const Rect& area, ButtonLook look) {
    Draw([&](Canvas& canvas) { canvas.PushButton(area, look); });
}

void BackingStore::DrawGlyph(const Rect& area, Glyph glyph, ButtonLook look) {
    Draw([&](Canvas& canvas) { canvas.DrawGlyph(area, glyph, look); });
}

void BackingStore::Text(const Rect& area, std::string_view text, const TextStyle& style) {
    Draw([&](Canvas& canvas) { canvas.Text(area, text, style); });
}

void BackingStore::Image(const Rect& area, const Picture& picture) {
    Draw([&](Canvas& canvas) { canvas.Image(area, picture); });
}

void BackingStore::PlacePicture(const Picture& picture, const PicturePlacement& placement) {
    Draw([&](Canvas& canvas) { canvas.PlacePicture(picture, placement); });
}

} // namespace quillgrid::qt
