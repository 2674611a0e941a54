#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/pads/CalculatorKeys.h"
#include "quillgrid/platform/Font.h"

#include <array>
#include <cstdint>
#include <string>

namespace quillgrid {

class TextMetrics;

/// What the calculator's geometry depends on: sizes in the font of its display.
struct CalculatorMeasures {
    std::int32_t TextHeight = 0;
    std::int32_t WidthOfW = 0; ///< the operator's room
};

/// Where everything of the calculator stands, in logical pixels.
struct QUILLGRID_EXPORT CalculatorLayout {
    /// A taller line would push the keys out of the pad.
    static constexpr std::int32_t TallestText = 20;

    Rect Pad;
    Rect Well;                                     ///< the edge around the display
    Rect Interior;                                 ///< the display
    Rect OperatorBox;                              ///< the operator stands at its left
    Rect NumberBox;                                ///< the number stands at its right
    Rect KeysArea;                                 ///< here the pointer is the calculator's own
    std::array<Rect, CalculatorKeyCount + 1> Keys; ///< by number, 1..24; empty for keys that are not there

    /// The key at a point, 0 when there is none.
    std::int32_t KeyAt(Point point) const;
    /// The formula slot 1..4 whose key is at a point, 0 when there is none.
    std::int32_t FormulaAt(Point point) const;

    /// Left and top of the picture on a key.
    static Point FaceOf(const Rect& key, std::int32_t number, bool pressed);

    /// One line a rectangle.
    std::string DumpText() const;
    friend bool operator==(const CalculatorLayout&, const CalculatorLayout&) = default;
};

QUILLGRID_EXPORT CalculatorLayout LayOutCalculator(const CalculatorMeasures& measures);

/// The font of the display: 10 points and bold, smaller where that would be taller than the display allows.
QUILLGRID_EXPORT Font CalculatorFont(const TextMetrics& metrics, const std::string& family);
QUILLGRID_EXPORT CalculatorMeasures MeasureCalculator(const TextMetrics& metrics, const Font& font);

} // namespace quillgrid
