#include "quillgrid/hosts/qt/TextDrawing.h"

#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/PreparedTexts.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace quillgrid::qt {

namespace {

Qt::Alignment HorizontalAlignment(AlignmentConstants alignment) {
    switch (alignment) {
    case qgalRightJustify: return Qt::AlignRight;
    case qgalCenter: return Qt::AlignHCenter;
    default: return Qt::AlignLeft;
    }
}

/// Text runs in the direction of its own letters, and the control says where it stands.
int FlagsFor(const QString& text, const TextStyle& style) {
    const Qt::Alignment side = HorizontalAlignment(style.Alignment) | Qt::AlignAbsolute;
    const int lines = style.WordWrap ? static_cast<int>(Qt::AlignTop | Qt::TextWordWrap)
                                     : static_cast<int>(Qt::AlignVCenter | Qt::TextSingleLine);
    return lines | static_cast<int>(side) | Qt::TextDontClip |
           (text.isRightToLeft() ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight);
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
/// Slanted letters lean out of their advance and accents stand above their line: both into the room that the
/// control leaves around every text.
QRect WithOverhang(const QRect& room, double lineHeight) {
    const int lean = static_cast<int>(lineHeight / 4) + 1; // a fifth where Qt slants an upright font itself
    const int rise = std::max(1, static_cast<int>(lineHeight / 12));
    return room.adjusted(-lean, -rise, lean, rise);
}

constexpr double RoundingError = 0.05;

} // namespace

TextDrawing::TextDrawing(QPainter& painter, const QFont& font, PreparedTexts* texts)
    : painter_(painter), font_(font), texts_(texts) {
    if (texts_) texts_->Use(font_, *painter_.device());
}

void TextDrawing::Draw(const QRect& room, std::string_view text, const TextStyle& style, const QColor& ink) {
    if (DrawPrepared(room, text, style, ink)) return;
    QString shown = ToQString(text.substr(0, std::min<std::size_t>(text.size(), 4 * LongestText)));
    shown.truncate(LongestText);
    DrawLaidOut(room, shown, style, ink);
}

void TextDrawing::DrawLaidOut(const QRect& room, const QString& text, const TextStyle& style,
                              const QColor& ink) {
    const QFont font = ToQFont(style.TextFont, font_);
    const QString shown = style.WordWrap ? text : Shortened(OnOneLine(text), font, room.width());
    painter_.save();
    painter_.setClipRect(style.WordWrap ? room : WithOverhang(room, QFontMetricsF(font).height()),
                         Qt::IntersectClip);
    painter_.setFont(font);
    painter_.setPen(ink);
    painter_.drawText(room, FlagsFor(shown, style), shown);
    painter_.restore();
}

/// A text that does not fit ends in dots: the first digits of a number must not pass for the whole.
QString TextDrawing::Shortened(const QString& text, const QFont& font, int width) const {
    const QFontMetricsF metrics(font, painter_.device());
    if (metrics.horizontalAdvance(text) <= width + RoundingError) return text;
    return metrics.elidedText(text, Qt::ElideRight, width);
}

/// False when the text must be laid out for this once: its lines break, or it runs from the right.
bool TextDrawing::DrawPrepared(const QRect& room, std::string_view text, const TextStyle& style,
                               const QColor& ink) {
    if (!texts_ || style.WordWrap) return false;
    const PreparedText* prepared = texts_->Find(text, style.TextFont);
    if (!prepared) return false;
    if (prepared->Width > room.width() + RoundingError) {
        const QString shown =
            Shortened(OnOneLine(ToQString(text)), texts_->FontOf(style.TextFont), room.width());
        prepared = texts_->Find(FromQString(shown), style.TextFont);
        if (!prepared) return false;
    }
    const QPointF corner = CornerOf(*prepared, room, style.Alignment);
    const QRect around = WithOverhang(room, prepared->Height);
    const bool narrow = !QRectF(around).contains(prepared->Ink.translated(corner));
    if (narrow) {
        painter_.save();
        painter_.setClipRect(around, Qt::IntersectClip);
    }
    painter_.setPen(ink);
    for (const QGlyphRun& glyphs : prepared->Glyphs)
        painter_.drawGlyphRun(corner, glyphs);
    if (narrow) painter_.restore();
    return true;
}

} // namespace quillgrid::qt
