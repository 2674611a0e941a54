// The artwork of the glyphs: as pixels, and as outlines that give the same pixels at their own size and stay
// sharp at any other.
#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/platform/Glyph.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace quillgrid {

/// Tenths of a pixel from the top left corner.
struct GlyphPoint {
    std::int16_t X = 0;
    std::int16_t Y = 0;
};
using GlyphContour = std::span<const GlyphPoint>;

using GlyphRows = std::array<std::string_view, GlyphSize>;

/// Eleven rows of eleven characters, '#' for ink.
QUILLGRID_EXPORT const GlyphRows& RowsOf(Glyph glyph);
/// Closed outlines; what an odd number of them encloses is ink.
QUILLGRID_EXPORT std::span<const GlyphContour> ContoursOf(Glyph glyph);

/// The glyph strip, 110 by 44 pixels: ten glyphs side by side in four bands. Band 1 combined with AND, then
/// band 0 with XOR, draws a glyph in black; bands 3 and 2 draw it in dark green, as on a pressed button.
inline constexpr std::int32_t GlyphStripWidth = GlyphSize * static_cast<std::int32_t>(GlyphCount);
inline constexpr std::int32_t GlyphStripHeight = 4 * GlyphSize;
/// The RGB colour of a pixel, black outside.
QUILLGRID_EXPORT Colour GlyphStripPixel(std::int32_t x, std::int32_t y);

inline constexpr Colour PressedGlyphColour = Rgb(0, 128, 0);

} // namespace quillgrid
