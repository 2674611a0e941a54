#pragma once

#include <QPalette>

namespace quillgrid::editor {

/// The palettes of the pictures, and of the window when --dark asks for one: the same on every desktop.
QPalette LightPalette();
QPalette DarkPalette();

/// Makes pictures independent of the desktop: style, font and hinting.
void UseFixedLook();

} // namespace quillgrid::editor
