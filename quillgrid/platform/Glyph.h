#pragma once

#include <cstddef>
#include <cstdint>

namespace quillgrid {

/// The small signs on buttons, in their order in the glyph strip: a cell's `Button` less one is its glyph.
enum class Glyph : std::uint8_t {
    DropDown,
    Spin,
    Clock,
    Ellipsis,
    Calculator,
    Telephone,
    Info,
    Close,
    Collapse,
    Expand
};
inline constexpr std::size_t GlyphCount = 10;
/// Pixels of one side.
inline constexpr std::int32_t GlyphSize = 11;

/// How a button, or what is on it, stands under the mouse.
enum class ButtonLook : std::uint8_t { Normal, Hot, Pressed };

} // namespace quillgrid
