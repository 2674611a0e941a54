#include "quillgrid/hosts/qt/QtCanvas.h"

#include "quillgrid/hosts/qt/ButtonColours.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/GlyphDrawing.h"
#include "quillgrid/hosts/qt/QtPicture.h"
#include "quillgrid/hosts/qt/QtTheme.h"

#include <QPainter>

#include <algorithm>
#include <array>

namespace quillgrid::qt {

namespace {

/// Top left and bottom right of a one pixel ring; `None` draws nothing.
struct Ring {
    Colour TopLeft;
    Colour BottomRight;
};

constexpr Colour None = 0xFFFFFFFFU;
constexpr Colour ColourWindowFrame = SystemColour(6);
constexpr Ring NoRing{None, None};

struct EdgeRow {
    Ring Outer;
    Ring Inner;
};

// In the order of EdgeKind.
constexpr std::array<EdgeRow, 6> Edges{{
    {{ColourWindowFrame, ColourWindowFrame}, NoRing},
    {{ColourButtonShadow, ColourButtonHighlight}, {ColourDarkShadow, ColourLight3D}},
    {{ColourButtonHighlight, ColourDarkShadow}, {ColourLight3D, ColourButtonShadow}},
    {{ColourButtonShadow, ColourButtonHighlight}, NoRing},
    {{ColourButtonHighlight, ColourButtonShadow}, NoRing},
    {{ColourButtonShadow, ColourButtonHighlight}, {ColourButtonHighlight, ColourButtonShadow}},
}};

/// The ternary raster operations that painters have too; others copy.
QPainter::CompositionMode ModeOf(std::int32_t operation) {
    switch (operation) {
    case 0x008800C6: return QPainter::RasterOp_SourceAndDestination;
    case 0x00EE0086: return QPainter::RasterOp_SourceOrDestination;
    case 0x00660046: return QPainter::RasterOp_SourceXorDestination;
    case 0x00330008: return QPainter::RasterOp_NotSource;
    default: return QPainter::CompositionMode_SourceOver;
    }
}

AlignmentConstants SwappedSides(AlignmentConstants alignment) {
    switch (alignment) {
    case qgalRightJustify: return qgalLeftJustify;
    case qgalCenter: return qgalCenter;
    default: return qgalRightJustify;
    }
}

constexpr std::size_t ColoursKept = 32;
constexpr int TallFill = 64;

} // namespace

QtCanvas::QtCanvas(QPainter& painter, const QPalette& palette, const QFont& font, PreparedTexts* texts)
    : painter_(painter),
      palette_(palette),
      lines_(painter, font, texts),
      grid_(painter),
      given_(painter.clipRegion()),
      clipped_(painter.hasClipping()) {
    colours_.reserve(ColoursKept);
}

/// Shades of system colours are mixed anew each time: the few of one painting are remembered.
const QColor& QtCanvas::ColourOf(Colour colour) {
    const auto known = std::find_if(colours_.begin(), colours_.end(),
                                    [colour](const auto& entry) { return entry.first == colour; });
    if (known != colours_.end()) return known->second;
    if (colours_.size() == ColoursKept) colours_.clear();
    return colours_.emplace_back(colour, ToQColor(colour, palette_)).second;
}

Rect QtCanvas::Placed(const Rect& area) const {
    return mirrored_ ? Mirrored(area, *mirrored_) : area;
}

// Where child widgets cut holes into the clip, filling across them goes span by span, in several threads:
// part by part it is a plain copy.
void QtCanvas::Fill(const Rect& area, Colour colour) {
    if (area.IsEmpty()) return;
    const Rect placed = Placed(area);
    const QColor& paint = ColourOf(colour);
    if (given_.rectCount() <= 1 || placed.Height() < TallFill || grid_.IsFractional())
        return FillPixels(grid_.ToDevice(placed), paint);
    for (const QRect& part : given_)
        painter_.fillRect(part & ToQRect(placed), paint);
}

void QtCanvas::FillPixels(const QRect& device, const QColor& colour) {
    if (!device.isEmpty()) painter_.fillRect(grid_.ToPainter(device), colour);
}

void QtCanvas::Line(Point from, Point to, Colour colour) {
    const Rect area = from.Y == to.Y
                          ? Rect{std::min(from.X, to.X), from.Y, std::max(from.X, to.X), from.Y + 1}
                          : Rect{from.X, std::min(from.Y, to.Y), from.X + 1, std::max(from.Y, to.Y)};
    if (!area.IsEmpty()) FillPixels(grid_.LineToDevice(Placed(area)), ColourOf(colour));
}

/// Returns what lies inside.
QRect QtCanvas::PaintRing(const QRect& device, const QColor& topLeft, const QColor& bottomRight) {
    const int line = grid_.Hairline();
    const QRect inside = device.adjusted(line, line, -line, -line);
    const auto fill = [this](int left, int top, int right, int bottom, const QColor& colour) {
        FillPixels({QPoint(left, top), QPoint(right, bottom)}, colour);
    };
    fill(device.left(), device.top(), device.right(), inside.top() - 1, topLeft);
    fill(device.left(), inside.top(), inside.left() - 1, device.bottom(), topLeft);
    fill(inside.left(), inside.bottom() + 1, device.right(), device.bottom(), bottomRight);
    fill(inside.right() + 1, inside.top(), device.right(), inside.bottom(), bottomRight);
    return inside;
}

void QtCanvas::Edge(const Rect& area, EdgeKind kind) {
    const auto index = static_cast<std::size_t>(kind);
    if (index >= Edges.size() || area.IsEmpty()) return;
    const auto& [outer, inner] = Edges[index];
    const QRect inside =
        PaintRing(grid_.ToDevice(Placed(area)), QColor(ColourOf(outer.TopLeft)), ColourOf(outer.BottomRight));
    if (inner.TopLeft == None || inside.isEmpty()) return;
    PaintRing(inside, QColor(ColourOf(inner.TopLeft)), ColourOf(inner.BottomRight));
}

/// The button keeps a line's distance from the edge of its cell and from the text, and its corners are blunt.
void QtCanvas::PushButton(const Rect& area, ButtonLook look) {
    const int line = grid_.Hairline();
    const QRect body = grid_.ToDevice(Placed(area)).adjusted(line, line, -line, -line);
    if (area.IsEmpty() || body.isEmpty()) return;
    const ButtonColours colours = ColoursOfButton(palette_, look);
    FillPixels(body.adjusted(1, 0, -1, 0), colours.Outline);
    FillPixels(body.adjusted(0, 1, 0, -1), colours.Outline);
    const QRect inside = body.adjusted(line, line, -line, -line);
    if (inside.isEmpty()) return;
    FillPixels(PaintRing(inside, colours.TopLeft, colours.BottomRight), colours.Face);
}

void QtCanvas::DrawGlyph(const Rect& area, Glyph glyph, ButtonLook look) {
    if (area.IsEmpty()) return;
    DrawGlyphAt(painter_, grid_, grid_.ToDevice(Placed(area)), glyph, ColoursOfButton(palette_, look).Ink);
}

void QtCanvas::Text(const Rect& area, std::string_view text, const TextStyle& given) {
    if (area.IsEmpty() || text.empty()) return;
    TextStyle style = given;
    if (mirrored_) style.Alignment = SwappedSides(given.Alignment);
    lines_.Draw(ToQRect(Placed(area)), text, style, ColourOf(style.Ink));
}

void QtCanvas::Image(const Rect& area, const Picture& picture) {
    const auto* drawable = dynamic_cast<const QtPicture*>(&picture);
    if (!drawable || area.IsEmpty()) return;
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    drawable->Draw(painter_, grid_.ToPainter(grid_.ToDevice(Placed(area))), palette_);
    painter_.restore();
}

void QtCanvas::PlacePicture(const Picture& picture, const PicturePlacement& placement) {
    const auto* drawable = dynamic_cast<const QtPicture*>(&picture);
    if (!drawable) return;
    const QSize natural = drawable->NaturalSize();
    const QPointF from(placement.SourceLeft.value_or(0), placement.SourceTop.value_or(0));
    const QSizeF part(placement.SourceWidth.value_or(natural.width()),
                      placement.SourceHeight.value_or(natural.height()));
    const QSizeF size(placement.Width ? *placement.Width : part.width(),
                      placement.Height ? *placement.Height : part.height());
    if (part.isEmpty() || size.isEmpty()) return;
    QRectF place(QPointF(placement.Position.X, placement.Position.Y), size);
    if (mirrored_) place.moveLeft(*mirrored_ - place.right());
    painter_.save();
    painter_.setClipRect(place & QRectF(painter_.window()), Qt::IntersectClip);
    painter_.setCompositionMode(ModeOf(placement.Operation.value_or(0)));
    painter_.translate(place.topLeft());
    painter_.scale(size.width() / part.width(), size.height() / part.height());
    painter_.translate(-from);
    drawable->Draw(painter_, QRectF(QPointF(), QSizeF(natural)), palette_);
    painter_.restore();
}

void QtCanvas::SetClip(const Rect& area) {
    ClearClip();
    painter_.setClipRect(grid_.ToPainter(grid_.ToDevice(Placed(area))),
                         clipped_ ? Qt::IntersectClip : Qt::ReplaceClip);
}

void QtCanvas::ClearClip() {
    if (clipped_) {
        painter_.setClipRegion(given_);
    } else {
        painter_.setClipping(false);
    }
}

} // namespace quillgrid::qt
