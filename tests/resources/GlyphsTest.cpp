#include "quillgrid/resources/Glyphs.h"

#include <gtest/gtest.h>

#include <string>

namespace quillgrid {
namespace {

/// Whether an odd number of edges lies to the right of a point, all in tenths of a pixel.
bool IsInside(std::span<const GlyphContour> contours, double x, double y) {
    bool inside = false;
    for (const GlyphContour contour : contours) {
        for (std::size_t i = 0; i < contour.size(); ++i) {
            const GlyphPoint from = contour[i];
            const GlyphPoint to = contour[(i + 1) % contour.size()];
            if ((from.Y > y) == (to.Y > y)) continue;
            if (from.X + (y - from.Y) * (to.X - from.X) / (to.Y - from.Y) > x) inside = !inside;
        }
    }
    return inside;
}

// Dense screens fill the outlines, others may copy the pixels: both must show the same sign.
TEST(Glyphs, OutlinesGiveThePixels) {
    for (std::size_t number = 0; number < GlyphCount; ++number) {
        const auto glyph = static_cast<Glyph>(number);
        for (int y = 0; y < GlyphSize; ++y) {
            std::string row;
            for (int x = 0; x < GlyphSize; ++x)
                row += IsInside(ContoursOf(glyph), x * 10 + 5, y * 10 + 5) ? '#' : '.';
            EXPECT_EQ(row, RowsOf(glyph)[static_cast<std::size_t>(y)]) << "glyph " << number << " row " << y;
        }
    }
}

TEST(Glyphs, StripDrawsBlackAndGreenByAndThenXor) {
    const Colour ground = Rgb(200, 210, 220);
    for (std::int32_t x = 0; x < GlyphStripWidth; ++x) {
        for (std::int32_t y = 0; y < GlyphSize; ++y) {
            const bool ink =
                RowsOf(static_cast<Glyph>(
                    x / GlyphSize))[static_cast<std::size_t>(y)][static_cast<std::size_t>(x % GlyphSize)] ==
                '#';
            const auto drawn = [&](std::int32_t image, std::int32_t mask) {
                return (ground & GlyphStripPixel(x, y + mask * GlyphSize)) ^
                       GlyphStripPixel(x, y + image * GlyphSize);
            };
            ASSERT_EQ(drawn(0, 1), ink ? Rgb(0, 0, 0) : ground);
            ASSERT_EQ(drawn(2, 3), ink ? PressedGlyphColour : ground);
        }
    }
    EXPECT_EQ(GlyphStripPixel(-1, 0), 0U);
    EXPECT_EQ(GlyphStripPixel(0, GlyphStripHeight), 0U);
}

} // namespace
} // namespace quillgrid
