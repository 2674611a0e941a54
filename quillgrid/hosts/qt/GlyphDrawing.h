#pragma once

#include "quillgrid/platform/Glyph.h"

class QColor;
class QPainter;
class QRect;

namespace quillgrid::qt {

class DeviceGrid;

/// Draws a glyph in the middle of an area (device pixels), pixels left over at the right and below: as pixels
/// at its own size, as outlines on the pixels of the device at any other.
void DrawGlyphAt(QPainter& painter, const DeviceGrid& grid, const QRect& area, Glyph glyph,
                 const QColor& ink);

} // namespace quillgrid::qt
