#pragma once

#include "quillgrid/platform/Glyph.h"

#include <QColor>

class QPalette;

namespace quillgrid::qt {

/// A push button in the colours of a palette.
struct ButtonColours {
    QColor Outline;
    QColor Face;
    QColor TopLeft; ///< inside the outline; light comes from there
    QColor BottomRight;
    QColor Ink;
};

ButtonColours ColoursOfButton(const QPalette& palette, ButtonLook look);

} // namespace quillgrid::qt
