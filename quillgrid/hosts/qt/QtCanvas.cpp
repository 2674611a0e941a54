#include "quillgrid/hosts/qt/QtCanvas.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/QtPicture.h"
#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/resources/Glyphs.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>

namespace quillgrid::qt {

namespace {

/// Top left and bottom right of a one pixel ring; `None` draws nothing.
struct Ring {
    Colour TopLeft;
    Colour BottomRight;
};

constexpr Colour None = 0xFFFFFFFFU;
constexpr Ring NoRing{None, None};

struct EdgeRow {
    Ring Outer;
    Ring Inner;
};

// In the order of EdgeKind.
constexpr std::array<EdgeRow, 6> Edges{{
    {{ColourButtonShadow, ColourButtonShadow}, NoRing},
    {{ColourButtonShadow, ColourButtonHighlight}, {ColourDarkShadow, ColourLight3D}},
    {{ColourButtonHighlight, ColourDarkShadow}, {ColourLight3D, ColourButtonShadow}},
    {{ColourButtonShadow, ColourButtonHighlight}, NoRing},
    {{ColourButtonHighlight, ColourButtonShadow}, NoRing},
    {{ColourButtonShadow, ColourButtonHighlight}, {ColourButtonHighlight, ColourButtonShadow}},
}};

Qt::Alignment HorizontalAlignment(AlignmentConstants alignment) {
    switch (alignment) {
    case qgalRightJustify: return Qt::AlignRight;
    case qgalCenter: return Qt::AlignHCenter;
    default: return Qt::AlignLeft;
    }
}

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

QPainterPath OutlineOf(Glyph glyph) {
    QPainterPath path; // odd-even is its own rule of filling
    for (const GlyphContour contour : ContoursOf(glyph)) {
        QPolygonF polygon;
        for (const GlyphPoint point : contour)
            polygon << QPointF(point.X, point.Y);
        path.addPolygon(polygon);
        path.closeSubpath();
    }
    return path;
}

/// Dark green; on a dark palette, where ink is light, a light one.
QColor PressedInk(const QColor& ink) {
    return ink.lightnessF() < 0.5 ? ToQColor(PressedGlyphColour, QPalette()) : QColor(96, 208, 96);
}

/// Where the text begins; in 64ths, as painters count, or roundings would part from theirs.
QPointF CornerOf(const PreparedText& text, const QRect& room, AlignmentConstants alignment) {
    const auto in64ths = [](qreal place) { return std::trunc(place * 64) / 64; };
    qreal left = room.left();
    if (alignment == qgalRightJustify) left += room.width() - text.Width;
    if (alignment == qgalCenter) left += (room.width() - text.Width) / 2;
    return {in64ths(left), in64ths(room.top() + (room.height() - text.Height) / 2)};
}

/// What is wider than any screen is not worth shaping.
constexpr qsizetype LongestText = 10'000;

constexpr std::size_t ColoursKept = 32;
constexpr int TallFill = 64;

} // namespace

QtCanvas::QtCanvas(QPainter& painter, const QPalette& palette, const QFont& font, PreparedTexts* texts)
    : painter_(painter),
      palette_(palette),
      font_(font),
      texts_(texts),
      given_(painter.clipRegion()),
      clipped_(painter.hasClipping()) {
    colours_.reserve(ColoursKept);
    if (texts_) texts_->Use(font_, *painter_.device());
}

/// Shades of system colours are mixed anew each time: the few of one painting are remembered.
const QColor& QtCanvas::ColourOf(Colour colour) {
    const auto known = std::find_if(colours_.begin(), colours_.end(),
                                    [colour](const auto& entry) { return entry.first == colour; });
    if (known != colours_.end()) return known->second;
    if (colours_.size() == ColoursKept) colours_.clear();
    return colours_.emplace_back(colour, ToQColor(colour, palette_)).second;
}

// Where child widgets cut holes into the clip, filling across them goes span by span, in several threads:
// part by part it is a plain copy.
void QtCanvas::Fill(const Rect& area, Colour colour) {
    if (area.IsEmpty()) return;
    const QRect whole = ToQRect(area);
    const QColor& paint = ColourOf(colour);
    if (given_.rectCount() <= 1 || whole.height() < TallFill) return painter_.fillRect(whole, paint);
    for (const QRect& part : given_)
        painter_.fillRect(part & whole, paint);
}

void QtCanvas::Line(Point from, Point to, Colour colour) {
    if (from.Y == to.Y) {
        Fill({std::min(from.X, to.X), from.Y, std::max(from.X, to.X), from.Y + 1}, colour);
    } else {
        Fill({from.X, std::min(from.Y, to.Y), from.X + 1, std::max(from.Y, to.Y)}, colour);
    }
}

void QtCanvas::Frame(const Rect& area, Colour topLeft, Colour bottomRight) {
    if (area.IsEmpty() || topLeft == None) return;
    Fill({area.Left, area.Top, area.Right, area.Top + 1}, topLeft);
    Fill({area.Left, area.Top + 1, area.Left + 1, area.Bottom}, topLeft);
    Fill({area.Left + 1, area.Bottom - 1, area.Right, area.Bottom}, bottomRight);
    Fill({area.Right - 1, area.Top + 1, area.Right, area.Bottom - 1}, bottomRight);
}

void QtCanvas::Edge(const Rect& area, EdgeKind kind) {
    const auto index = static_cast<std::size_t>(kind);
    if (index >= Edges.size()) return;
    Frame(area, Edges[index].Outer.TopLeft, Edges[index].Outer.BottomRight);
    Frame(area.Shrunk(1), Edges[index].Inner.TopLeft, Edges[index].Inner.BottomRight);
}

void QtCanvas::PushButton(const Rect& area, ButtonLook look) {
    if (area.IsEmpty()) return;
    QColor face = palette_.color(QPalette::Button);
    if (look == ButtonLook::Pressed) face = Mixed(face, Qt::black, 0.12);
    if (look == ButtonLook::Hot) face = Mixed(face, palette_.color(QPalette::Highlight), 0.15);
    painter_.fillRect(ToQRect(area), face);
    Edge(area, look == ButtonLook::Pressed ? EdgeKind::SunkenOuter : EdgeKind::Raised);
}

void QtCanvas::DrawGlyph(const Rect& area, Glyph glyph, ButtonLook look) {
    const QPoint corner(area.Left + (area.Width() - GlyphSize) / 2,
                        area.Top + (area.Height() - GlyphSize) / 2);
    const QColor ink = palette_.color(QPalette::ButtonText);
    painter_.save();
    painter_.setClipRect(ToQRect(area), Qt::IntersectClip);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.translate(corner);
    painter_.scale(0.1, 0.1);
    painter_.fillPath(OutlineOf(glyph), look == ButtonLook::Pressed ? PressedInk(ink) : ink);
    painter_.restore();
}

void QtCanvas::Text(const Rect& area, std::string_view text, const TextStyle& style) {
    if (area.IsEmpty() || text.empty() || DrawPrepared(area, text, style)) return;
    QString shown = ToQString(text.substr(0, std::min<std::size_t>(text.size(), 4 * LongestText)));
    shown.truncate(LongestText);
    const int flags = style.WordWrap ? static_cast<int>(Qt::AlignTop | Qt::TextWordWrap)
                                     : static_cast<int>(Qt::AlignVCenter | Qt::TextSingleLine);
    painter_.save();
    painter_.setClipRect(ToQRect(area), Qt::IntersectClip);
    painter_.setFont(ToQFont(style.TextFont, font_));
    painter_.setPen(ColourOf(style.Ink));
    painter_.drawText(ToQRect(area), flags | static_cast<int>(HorizontalAlignment(style.Alignment)),
                      style.WordWrap ? shown : OnOneLine(shown));
    painter_.restore();
}

/// False when the text must be laid out for this once: its lines break, or it runs from the right.
bool QtCanvas::DrawPrepared(const Rect& area, std::string_view text, const TextStyle& style) {
    if (!texts_ || style.WordWrap || painter_.layoutDirection() == Qt::RightToLeft) return false;
    const PreparedText* const prepared = texts_->Find(text, style.TextFont);
    if (!prepared) return false;
    const QRect room = ToQRect(area);
    const QPointF corner = CornerOf(*prepared, room, style.Alignment);
    const bool narrow = !QRectF(room).contains(prepared->Ink.translated(corner));
    if (narrow) {
        painter_.save();
        painter_.setClipRect(room, Qt::IntersectClip);
    }
    painter_.setPen(ColourOf(style.Ink));
    for (const QGlyphRun& glyphs : prepared->Glyphs)
        painter_.drawGlyphRun(corner, glyphs);
    if (narrow) painter_.restore();
    return true;
}

void QtCanvas::Image(const Rect& area, const Picture& picture) {
    const auto* drawable = dynamic_cast<const QtPicture*>(&picture);
    if (!drawable || area.IsEmpty()) return;
    painter_.save();
    painter_.setRenderHint(QPainter::Antialiasing);
    drawable->Draw(painter_, QRectF(ToQRect(area)), palette_);
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
    const QRectF place(QPointF(placement.Position.X, placement.Position.Y), size);
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
    painter_.setClipRect(ToQRect(area), clipped_ ? Qt::IntersectClip : Qt::ReplaceClip);
}

void QtCanvas::ClearClip() {
    if (clipped_) {
        painter_.setClipRegion(given_);
    } else {
        painter_.setClipping(false);
    }
}

} // namespace quillgrid::qt
