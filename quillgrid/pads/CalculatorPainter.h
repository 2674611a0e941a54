#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/platform/Canvas.h"

#include <bitset>
#include <cstdint>

namespace quillgrid {

class CalculatorCore;

/// Which of the keys 1..24 are drawn pressed.
using PressedKeys = std::bitset<32>;

/// Draws the calculator as it is now: its frame, its display and its keys.
class QUILLGRID_EXPORT CalculatorPainter {
public:
    /// Everything outlives the painter; `images` may be null.
    CalculatorPainter(Canvas& canvas, const CalculatorCore& core, const ImageSource* images, Font font)
        : canvas_(canvas), core_(core), images_(images), font_(std::move(font)) {}

    /// What lies in the area; may draw beyond it.
    void Paint(const Rect& area, const PressedKeys& pressed);

private:
    void PaintDisplay();
    void PaintKey(std::int32_t number, bool pressed);
    void PaintFace(std::int32_t number, const Rect& key, bool pressed);
    void PaintTexture(const Rect& key);
    const Picture* ImageOf(std::int32_t number) const;
    TextStyle StyleOf(Colour ink, AlignmentConstants alignment) const;

    Canvas& canvas_;
    const CalculatorCore& core_;
    const ImageSource* images_;
    Font font_;
};

} // namespace quillgrid
