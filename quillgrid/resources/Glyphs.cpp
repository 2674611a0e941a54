#include "quillgrid/resources/Glyphs.h"

namespace quillgrid {

namespace {

constexpr GlyphRows DropDownRows{{
    "...........",
    "...........",
    "...........",
    "...........",
    "..#######..",
    "...#####...",
    "....###....",
    ".....#.....",
    "...........",
    "...........",
    "...........",
}};
constexpr GlyphPoint DropDownPoints1[] = {{20, 40}, {90, 40}, {55, 80}};
constexpr GlyphContour DropDownContours[] = {DropDownPoints1};

constexpr GlyphRows SpinRows{{
    "...........",
    ".....#.....",
    "....###....",
    "...#####...",
    "...........",
    "...........",
    "...........",
    "...#####...",
    "....###....",
    ".....#.....",
    "...........",
}};
constexpr GlyphPoint SpinPoints1[] = {{55, 10}, {80, 40}, {30, 40}};
constexpr GlyphPoint SpinPoints2[] = {{30, 70}, {80, 70}, {55, 100}};
constexpr GlyphContour SpinContours[] = {SpinPoints1, SpinPoints2};

constexpr GlyphRows ClockRows{{
    "...#####...",
    "..#.....#..",
    ".#...#...#.",
    "#....#....#",
    "#....#....#",
    "#....###..#",
    "#.........#",
    "#.........#",
    ".#.......#.",
    "..#.....#..",
    "...#####...",
}};
constexpr GlyphPoint ClockPoints1[] = {{32, 0},   {78, 0},   {110, 32}, {110, 78},
                                       {78, 110}, {32, 110}, {0, 78},   {0, 32}};
constexpr GlyphPoint ClockPoints2[] = {{35, 10},  {75, 10},  {100, 35}, {100, 75},
                                       {75, 100}, {35, 100}, {10, 75},  {10, 35}};
constexpr GlyphPoint ClockPoints3[] = {{50, 20}, {60, 20}, {60, 50}, {80, 50}, {80, 60}, {50, 60}};
constexpr GlyphContour ClockContours[] = {ClockPoints1, ClockPoints2, ClockPoints3};

constexpr GlyphRows EllipsisRows{{
    "...........",
    "...........",
    "...........",
    "...........",
    "...........",
    "...........",
    "..#..#..#..",
    "..#..#..#..",
    "...........",
    "...........",
    "...........",
}};
constexpr GlyphPoint EllipsisPoints1[] = {{20, 60}, {30, 60}, {30, 80}, {20, 80}};
constexpr GlyphPoint EllipsisPoints2[] = {{50, 60}, {60, 60}, {60, 80}, {50, 80}};
constexpr GlyphPoint EllipsisPoints3[] = {{80, 60}, {90, 60}, {90, 80}, {80, 80}};
constexpr GlyphContour EllipsisContours[] = {EllipsisPoints1, EllipsisPoints2, EllipsisPoints3};

constexpr GlyphRows CalculatorRows{{
    ".#########.",
    ".#.......#.",
    ".#.#####.#.",
    ".#.#####.#.",
    ".#.......#.",
    ".#.#.#.#.#.",
    ".#.......#.",
    ".#.#.#.#.#.",
    ".#.......#.",
    ".#.......#.",
    ".#########.",
}};
constexpr GlyphPoint CalculatorPoints1[] = {{10, 0}, {100, 0}, {100, 110}, {10, 110}};
constexpr GlyphPoint CalculatorPoints2[] = {{20, 10}, {90, 10}, {90, 100}, {20, 100}};
constexpr GlyphPoint CalculatorPoints3[] = {{30, 20}, {80, 20}, {80, 40}, {30, 40}};
constexpr GlyphPoint CalculatorPoints4[] = {{30, 50}, {40, 50}, {40, 60}, {30, 60}};
constexpr GlyphPoint CalculatorPoints5[] = {{50, 50}, {60, 50}, {60, 60}, {50, 60}};
constexpr GlyphPoint CalculatorPoints6[] = {{70, 50}, {80, 50}, {80, 60}, {70, 60}};
constexpr GlyphPoint CalculatorPoints7[] = {{30, 70}, {40, 70}, {40, 80}, {30, 80}};
constexpr GlyphPoint CalculatorPoints8[] = {{50, 70}, {60, 70}, {60, 80}, {50, 80}};
constexpr GlyphPoint CalculatorPoints9[] = {{70, 70}, {80, 70}, {80, 80}, {70, 80}};
constexpr GlyphContour CalculatorContours[] = {CalculatorPoints1, CalculatorPoints2, CalculatorPoints3,
                                               CalculatorPoints4, CalculatorPoints5, CalculatorPoints6,
                                               CalculatorPoints7, CalculatorPoints8, CalculatorPoints9};

constexpr GlyphRows TelephoneRows{{
    "...........",
    ".#########.",
    "###########",
    "###.....###",
    "###.###.###",
    "...#####...",
    "...#...#...",
    "..##...##..",
    "..#######..",
    ".#########.",
    "...........",
}};
constexpr GlyphPoint TelephonePoints1[] = {{0, 49},   {0, 27},  {17, 10}, {93, 10}, {110, 27},
                                           {110, 49}, {80, 49}, {80, 31}, {30, 31}, {30, 49}};
constexpr GlyphPoint TelephonePoints2[] = {{40, 42}, {70, 42}, {98, 100}, {12, 100}};
constexpr GlyphPoint TelephonePoints3[] = {{44, 62}, {66, 62}, {66, 84}, {44, 84}};
constexpr GlyphContour TelephoneContours[] = {TelephonePoints1, TelephonePoints2, TelephonePoints3};

constexpr GlyphRows InfoRows{{
    "...........",
    "....##.....",
    "....##.....",
    "...........",
    "...###.....",
    "....##.....",
    "....##.....",
    "....##.....",
    "....##.....",
    "...####....",
    "...........",
}};
constexpr GlyphPoint InfoPoints1[] = {{40, 10}, {60, 10}, {60, 30}, {40, 30}};
constexpr GlyphPoint InfoPoints2[] = {{30, 40},  {60, 40}, {60, 90}, {70, 90}, {70, 100},
                                      {30, 100}, {30, 90}, {40, 90}, {40, 50}, {30, 50}};
constexpr GlyphContour InfoContours[] = {InfoPoints1, InfoPoints2};

constexpr GlyphRows CloseRows{{
    "...........",
    "...........",
    "..##....##.",
    "...##..##..",
    "....####...",
    ".....##....",
    "....####...",
    "...##..##..",
    "..##....##.",
    "...........",
    "...........",
}};
constexpr GlyphPoint ClosePoints1[] = {{14, 20},  {34, 20}, {60, 46}, {86, 20}, {106, 20}, {70, 56},
                                       {104, 90}, {84, 90}, {60, 66}, {36, 90}, {16, 90},  {50, 56}};
constexpr GlyphContour CloseContours[] = {ClosePoints1};

constexpr GlyphRows CollapseRows{{
    "...........",
    ".#########.",
    ".#.......#.",
    ".#.......#.",
    ".#.......#.",
    ".#.#####.#.",
    ".#.......#.",
    ".#.......#.",
    ".#.......#.",
    ".#########.",
    "...........",
}};
constexpr GlyphPoint CollapsePoints1[] = {{10, 10}, {100, 10}, {100, 100}, {10, 100}};
constexpr GlyphPoint CollapsePoints2[] = {{20, 20}, {90, 20}, {90, 90}, {20, 90}};
constexpr GlyphPoint CollapsePoints3[] = {{30, 50}, {80, 50}, {80, 60}, {30, 60}};
constexpr GlyphContour CollapseContours[] = {CollapsePoints1, CollapsePoints2, CollapsePoints3};

constexpr GlyphRows ExpandRows{{
    "...........",
    ".#########.",
    ".#.......#.",
    ".#...#...#.",
    ".#...#...#.",
    ".#.#####.#.",
    ".#...#...#.",
    ".#...#...#.",
    ".#.......#.",
    ".#########.",
    "...........",
}};
constexpr GlyphPoint ExpandPoints1[] = {{10, 10}, {100, 10}, {100, 100}, {10, 100}};
constexpr GlyphPoint ExpandPoints2[] = {{20, 20}, {90, 20}, {90, 90}, {20, 90}};
constexpr GlyphPoint ExpandPoints3[] = {{50, 30}, {60, 30}, {60, 50}, {80, 50}, {80, 60}, {60, 60},
                                        {60, 80}, {50, 80}, {50, 60}, {30, 60}, {30, 50}, {50, 50}};
constexpr GlyphContour ExpandContours[] = {ExpandPoints1, ExpandPoints2, ExpandPoints3};

struct Artwork {
    const GlyphRows& Rows;
    std::span<const GlyphContour> Contours;
};

// In the order of Glyph.
constexpr std::array<Artwork, GlyphCount> Strip{{
    {DropDownRows, DropDownContours},
    {SpinRows, SpinContours},
    {ClockRows, ClockContours},
    {EllipsisRows, EllipsisContours},
    {CalculatorRows, CalculatorContours},
    {TelephoneRows, TelephoneContours},
    {InfoRows, InfoContours},
    {CloseRows, CloseContours},
    {CollapseRows, CollapseContours},
    {ExpandRows, ExpandContours},
}};

const Artwork& ArtworkOf(Glyph glyph) {
    const auto index = static_cast<std::size_t>(glyph);
    return Strip[index < GlyphCount ? index : 0];
}

} // namespace

const GlyphRows& RowsOf(Glyph glyph) {
    return ArtworkOf(glyph).Rows;
}

std::span<const GlyphContour> ContoursOf(Glyph glyph) {
    return ArtworkOf(glyph).Contours;
}

Colour GlyphStripPixel(std::int32_t x, std::int32_t y) {
    if (x < 0 || x >= GlyphStripWidth || y < 0 || y >= GlyphStripHeight) return Rgb(0, 0, 0);
    const auto& rows = Strip[static_cast<std::size_t>(x / GlyphSize)].Rows;
    const bool ink =
        rows[static_cast<std::size_t>(y % GlyphSize)][static_cast<std::size_t>(x % GlyphSize)] == '#';
    const std::int32_t band = y / GlyphSize;
    if (band % 2 == 1) return ink ? Rgb(0, 0, 0) : Rgb(255, 255, 255);
    return ink && band == 2 ? PressedGlyphColour : Rgb(0, 0, 0);
}

} // namespace quillgrid
