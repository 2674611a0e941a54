#pragma once

#include "quillgrid/platform/Font.h"

#include <QFont>
#include <QGlyphRun>
#include <QList>
#include <QRectF>

#include <functional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

class QPaintDevice;

namespace quillgrid::qt {

/// One line of text, shaped. Glyphs and ink stand relative to the top left of the line.
struct PreparedText {
    QList<QGlyphRun> Glyphs;
    QRectF Ink;
    qreal Width = 0.0; ///< the advance, which alignment goes by
    qreal Height = 0.0;
};

/// Keeps the shaped texts of the rows in view, so that painting them again only copies glyphs: finding the
/// glyphs of a text costs ten times as much as drawing them.
class PreparedTexts {
public:
    /// What follows is drawn on `device`, in descriptions of fonts that refer to `font`.
    void Use(const QFont& font, const QPaintDevice& device);
    /// Null when the text is none that would be kept: long, or from right to left.
    const PreparedText* Find(std::string_view text, const Font& font);
    const QFont& FontOf(const Font& font) { return TextsOf(font).Real; }
    void Forget() { fonts_.clear(); }

private:
    struct Hash {
        using is_transparent = void;
        std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
    };
    using Texts = std::unordered_map<std::string, PreparedText, Hash, std::equal_to<>>;
    struct FontTexts {
        Font Description;
        QFont Real;
        Texts Recent;
        Texts Older; ///< what was recent before; goes when as many new ones have come
    };

    FontTexts& TextsOf(const Font& font);
    const PreparedText* Keep(FontTexts& texts, std::string_view text, PreparedText prepared);

    QFont host_;
    int density_ = 0;
    std::vector<FontTexts> fonts_;
};

} // namespace quillgrid::qt
