#pragma once

#include "quillgrid/platform/Canvas.h"

#include <QImage>
#include <QRegion>
#include <QWidget>

#include <functional>
#include <optional>

class QPainter;

namespace quillgrid::qt {

/// Lets the host draw on top of the control at any moment. From the first such drawing on the control is
/// painted into an image, where the drawing stays until the control paints that part again; a window that is
/// merely uncovered shows both.
class BackingStore : public Canvas {
public:
    using Painting = std::function<void(QPainter&, const QRect& area)>;

    /// `paint` paints the control. The widget must outlive the store.
    BackingStore(QWidget& widget, Painting paint) : widget_(widget), paint_(std::move(paint)) {}

    /// The control will be painted anew there.
    void MarkStale(const QRect& area);
    void Show(QPainter& painter, const QRegion& exposed);

    void Fill(const Rect& area, Colour colour) override;
    void Line(Point from, Point to, Colour colour) override;
    void Edge(const Rect& area, EdgeKind kind) override;
    void PushButton(const Rect& area, ButtonLook look) override;
    void DrawGlyph(const Rect& area, Glyph glyph, ButtonLook look) override;
    void Text(const Rect& area, std::string_view text, const TextStyle& style) override;
    void Image(const Rect& area, const Picture& picture) override;
    void PlacePicture(const Picture& picture, const PicturePlacement& placement) override;
    void SetClip(const Rect& area) override { clip_ = area; }
    void ClearClip() override { clip_.reset(); }

private:
    void Draw(const std::function<void(Canvas&)>& draw);
    void BringUpToDate();

    QWidget& widget_;
    Painting paint_;
    QImage image_; ///< null until the host draws
    QRegion stale_;
    std::optional<Rect> clip_;
};

} // namespace quillgrid::qt
