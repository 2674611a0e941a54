#pragma once

#include "quillgrid/hosts/qt/DeviceGrid.h"
#include "quillgrid/hosts/qt/TextDrawing.h"
#include "quillgrid/platform/Canvas.h"

#include <QColor>
#include <QPalette>
#include <QRegion>

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

class QPainter;

namespace quillgrid::qt {

/// Draws with a painter in logical pixels, crisp at any density of the painter's device. A clip set here
/// narrows the one that the painter came with.
class QtCanvas : public Canvas {
public:
    /// The painter must be active and outlive the canvas. `font` is the one that font descriptions refer to.
    /// `texts`, if any, keeps what was shaped for the next painting and outlives the canvas.
    QtCanvas(QPainter& painter, const QPalette& palette, const QFont& font, PreparedTexts* texts = nullptr);

    /// What follows is drawn from right to left on a surface of this width; letters, images and glyphs are
    /// not turned around.
    void MirrorWithin(int width) { mirrored_ = width; }

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
    const QColor& ColourOf(Colour colour);
    Rect Placed(const Rect& area) const;
    void FillPixels(const QRect& device, const QColor& colour);
    QRect PaintRing(const QRect& device, const QColor& topLeft, const QColor& bottomRight);

    QPainter& painter_;
    QPalette palette_;
    TextDrawing lines_;
    DeviceGrid grid_;
    std::optional<int> mirrored_;
    std::vector<std::pair<Colour, QColor>> colours_;
    QRegion given_; ///< the painter's own clip, empty when it has none
    bool clipped_;
};

} // namespace quillgrid::qt
