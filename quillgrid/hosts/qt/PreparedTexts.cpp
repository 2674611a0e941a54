#include "quillgrid/hosts/qt/PreparedTexts.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QPaintDevice>
#include <QTextLayout>

#include <algorithm>

namespace quillgrid::qt {

namespace {

constexpr std::size_t LongestKept = 200; ///< bytes
constexpr std::size_t TextsKept = 400;   ///< a high window's worth, twice
constexpr std::size_t FontsKept = 16;

PreparedText Prepare(const QString& text, const QFont& font) {
    QTextLayout layout(text, font);
    QTextOption option;
    option.setTextDirection(Qt::LeftToRight);
    option.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(option);
    layout.setCacheEnabled(true); // or the text is shaped a second time for its glyphs
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    // Not the line's own height, which is rounded: painters centre by this one.
    PreparedText prepared{layout.glyphRuns(), {}, line.horizontalAdvance(), line.ascent() + line.descent()};
    for (const QGlyphRun& run : std::as_const(prepared.Glyphs))
        prepared.Ink |= run.boundingRect();
    return prepared;
}

} // namespace

void PreparedTexts::Use(const QFont& font, const QPaintDevice& device) {
    if (font == host_ && device.logicalDpiY() == density_) return;
    Forget();
    host_ = font;
    density_ = device.logicalDpiY();
}

PreparedTexts::FontTexts& PreparedTexts::TextsOf(const Font& font) {
    const auto found = std::find_if(fonts_.begin(), fonts_.end(),
                                    [&](const FontTexts& texts) { return texts.Description == font; });
    if (found != fonts_.end()) return *found;
    if (fonts_.size() >= FontsKept) Forget();
    return fonts_.emplace_back(FontTexts{font, ToQFont(font, host_), {}, {}});
}

const PreparedText* PreparedTexts::Find(std::string_view text, const Font& font) {
    if (text.size() > LongestKept) return nullptr;
    FontTexts& texts = TextsOf(font);
    if (const auto recent = texts.Recent.find(text); recent != texts.Recent.end()) return &recent->second;
    if (const auto older = texts.Older.find(text); older != texts.Older.end())
        return Keep(texts, text, std::move(older->second));
    const QString shown = OnOneLine(ToQString(text));
    return shown.isRightToLeft() ? nullptr : Keep(texts, text, Prepare(shown, texts.Real));
}

const PreparedText* PreparedTexts::Keep(FontTexts& texts, std::string_view text, PreparedText prepared) {
    if (texts.Recent.size() >= TextsKept) texts.Older = std::exchange(texts.Recent, {});
    return &(texts.Recent[std::string(text)] = std::move(prepared));
}

} // namespace quillgrid::qt
