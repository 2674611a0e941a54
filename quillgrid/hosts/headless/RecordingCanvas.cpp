#include "quillgrid/hosts/headless/RecordingCanvas.h"

#include "quillgrid/hosts/headless/TextOf.h"

#include <algorithm>
#include <iterator>

namespace quillgrid::headless {

namespace {

constexpr const char* EdgeNames[] = {"flat", "sunken", "raised", "sunken-outer", "raised-inner", "etched"};
constexpr const char* LookNames[] = {"", " hot", " pressed"};
constexpr const char* GlyphNames[] = {"drop-down", "spin", "clock", "ellipsis", "calculator",
                                      "telephone", "info", "close", "collapse", "expand"};
constexpr const char* AlignmentNames[] = {"left", "right", "centre"};

std::string StyleText(const TextStyle& style) {
    std::string text = TextOf(style.Ink) + " " + AlignmentNames[style.Alignment];
    if (style.TextFont.Bold) text += " bold";
    if (style.TextFont.Italic) text += " italic";
    return text;
}

} // namespace

void RecordingCanvas::Fill(const Rect& area, Colour colour) {
    calls_.push_back("fill " + TextOf(area) + " " + TextOf(colour));
}

void RecordingCanvas::Line(Point from, Point to, Colour colour) {
    calls_.push_back("line " + TextOf(Rect{from.X, from.Y, to.X, to.Y}) + " " + TextOf(colour));
}

void RecordingCanvas::Edge(const Rect& area, EdgeKind kind) {
    calls_.push_back("edge " + TextOf(area) + " " + EdgeNames[static_cast<int>(kind)]);
}

void RecordingCanvas::PushButton(const Rect& area, ButtonLook look) {
    calls_.push_back("button " + TextOf(area) + LookNames[static_cast<int>(look)]);
}

void RecordingCanvas::DrawGlyph(const Rect& area, Glyph glyph, ButtonLook look) {
    calls_.push_back("glyph " + TextOf(area) + " " + GlyphNames[static_cast<int>(glyph)] +
                     LookNames[static_cast<int>(look)]);
}

void RecordingCanvas::Text(const Rect& area, std::string_view text, const TextStyle& style) {
    calls_.push_back("text " + TextOf(area) + " '" + std::string(text) + "' " + StyleText(style));
    texts_.emplace_back(text);
}

void RecordingCanvas::Image(const Rect& area, const Picture&) {
    calls_.push_back("image " + TextOf(area));
}

void RecordingCanvas::PlacePicture(const Picture&, const PicturePlacement& placement) {
    std::string call =
        "picture " + std::to_string(placement.Position.X) + "," + std::to_string(placement.Position.Y);
    const auto add = [&call](const char* name, const std::optional<std::int32_t>& number) {
        if (number) call += std::string(" ") + name + "=" + std::to_string(*number);
    };
    add("width", placement.Width);
    add("height", placement.Height);
    add("left", placement.SourceLeft);
    add("top", placement.SourceTop);
    add("source-width", placement.SourceWidth);
    add("source-height", placement.SourceHeight);
    add("operation", placement.Operation);
    calls_.push_back(call);
}

void RecordingCanvas::SetClip(const Rect& area) {
    calls_.push_back("clip " + TextOf(area));
}

void RecordingCanvas::ClearClip() {
    calls_.emplace_back("clip off");
}

std::vector<std::string> RecordingCanvas::Starting(std::string_view start) const {
    std::vector<std::string> lines;
    std::copy_if(calls_.begin(), calls_.end(), std::back_inserter(lines),
                 [&](const std::string& line) { return line.starts_with(start); });
    return lines;
}

} // namespace quillgrid::headless
