#pragma once

#include "quillgrid/platform/Canvas.h"

#include <QFont>
#include <QPalette>
#include <QRegion>

class QPainter;

namespace quillgrid::qt {

/// Draws with a painter in logical pixels; the painter's device makes them crisp at any density. A clip set
/// here narrows the one that the painter came with.
class QtCanvas : public Canvas {
public:
    /// The painter must be active and outlive the canvas. `font` is the one that font descriptions refer to.
    QtCanvas(QPainter& painter, const QPalette& palette, const QFont& font);

    void Fill(const Rect& area, Colour colour) override;
    void Line(Point from, Point to, Colour colour) override;
    void Edge(const Rect& area, EdgeKind kind) override;
    void PushButton(const Rect& area, ButtonLook look) override;
    void DrawGlyph(const Rect& area, Glyph glyph, ButtonLook look) override;
    void Text(const Rect& area, std::string_view text, const TextStyle& style) override;
    void Image(const Rect& area, const Picture& picture) override;
    void PlacePicture(const Picture& picture, const PicturePlacement& placement) override;
    void SetClip(const Rect& area) override;
    void ClearClip() override;

private:
    void Frame(const Rect& area, Colour topLeft, Colour bottomRight);

    QPainter& painter_;
    QPalette palette_;
    QFont font_;
    QRegion given_; ///< the painter's own clip, empty when it has none
    bool clipped_;
};

} // namespace quillgrid::qt
