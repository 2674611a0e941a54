#pragma once

#include <cstdint>

namespace quillgrid {

/// 32 bits: red in the low byte, then green and blue; or, with the high bit set, a system colour whose index
/// is the low byte (0x80000005 window background, 0x80000008 window text ...).
using Colour = std::uint32_t;

inline constexpr Colour SystemColourFlag = 0x80000000U;

constexpr Colour SystemColour(std::uint32_t index) {
    return SystemColourFlag | index;
}
constexpr bool IsSystemColour(Colour colour) {
    return (colour & SystemColourFlag) != 0;
}
constexpr Colour Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
    return (red & 0xFFU) | ((green & 0xFFU) << 8U) | ((blue & 0xFFU) << 16U);
}

inline constexpr Colour ColourDesktop = SystemColour(1);
inline constexpr Colour ColourWindow = SystemColour(5);
inline constexpr Colour ColourWindowText = SystemColour(8);
inline constexpr Colour ColourHighlight = SystemColour(13);
inline constexpr Colour ColourHighlightText = SystemColour(14);
inline constexpr Colour ColourButtonFace = SystemColour(15);
inline constexpr Colour ColourButtonShadow = SystemColour(16);
inline constexpr Colour ColourGreyText = SystemColour(17);
inline constexpr Colour ColourButtonHighlight = SystemColour(20);
inline constexpr Colour ColourDarkShadow = SystemColour(21);
inline constexpr Colour ColourLight3D = SystemColour(22);

} // namespace quillgrid
