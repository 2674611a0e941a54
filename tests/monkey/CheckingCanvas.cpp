#include "tests/monkey/CheckingCanvas.h"

#include "quillgrid/hosts/headless/TextOf.h"

#include <algorithm>
#include <cstdint>

namespace quillgrid::monkey {

namespace {

/// How far beyond the surface clipped parts and wide settings may reach.
constexpr std::int64_t Margin = 1 << 26;

bool IsNear(std::int64_t coordinate, std::int32_t size) {
    return coordinate >= std::min<std::int64_t>(size, 0) - Margin &&
           coordinate <= std::max<std::int64_t>(size, 0) + Margin;
}

} // namespace

void CheckingCanvas::Check(const Rect& area) {
    ++calls_;
    const auto [width, height] = surface_;
    if (!IsNear(area.Left, width) || !IsNear(area.Right, width) || !IsNear(area.Top, height) ||
        !IsNear(area.Bottom, height))
        Complain("drawn far away", area);
}

void CheckingCanvas::Complain(const std::string& what, const Rect& area) {
    if (complaint_.empty()) complaint_ = what + ": " + headless::TextOf(area);
}

void CheckingCanvas::DrawGlyph(const Rect& area, Glyph glyph, ButtonLook) {
    Check(area);
    if (static_cast<std::size_t>(glyph) >= GlyphCount) Complain("a glyph that does not exist", area);
}

void CheckingCanvas::Text(const Rect& area, std::string_view, const TextStyle& style) {
    Check(area);
    if (style.Alignment < qgalLeftJustify || style.Alignment > qgalCenter)
        Complain("an alignment that does not exist", area);
}

void CheckingCanvas::SetClip(const Rect& area) {
    Check(area);
    clipped_ = true;
}

void CheckingCanvas::ClearClip() {
    if (!clipped_) Complain("no clip to end", {});
    clipped_ = false;
}

} // namespace quillgrid::monkey
