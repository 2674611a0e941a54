#include "quillgrid/pads/CalculatorLayout.h"

#include "quillgrid/pads/PadDump.h"
#include "quillgrid/platform/TextMetrics.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::int32_t KeySize = 25;
constexpr std::int32_t KeyPitch = 27;
constexpr std::int32_t KeysLeft = 4;
constexpr double FontSize = 10.0;
constexpr double SmallestFontSize = 4.0;
constexpr double FontSizeStep = 0.5;

Rect AreaOf(const CalculatorKey& key, std::int32_t displayHeight) {
    if (key.Row == 0) return {};
    const std::int32_t left = KeysLeft + KeyPitch * key.Column;
    const std::int32_t top = displayHeight + 2 + KeyPitch * (key.Row - 1);
    return {left, top, left + KeySize, top + KeySize + KeyPitch * (key.Height - 1)};
}

} // namespace

CalculatorLayout LayOutCalculator(const CalculatorMeasures& measures) {
    const std::int32_t display = std::clamp(measures.TextHeight, 0, CalculatorLayout::TallestText) + 7;
    const std::int32_t operatorRight = 7 + std::clamp(measures.WidthOfW, 0, 160 - 7);
    CalculatorLayout layout{.Pad = {0, 0, 168, 135},
                            .Well = {4, 4, 164, display},
                            .Interior = {5, 5, 162, display - 2},
                            .OperatorBox = {7, 8, operatorRight, display - 6},
                            .NumberBox = {operatorRight, 8, 160, display - 6},
                            .KeysArea = {0, display + 4, 168, 139},
                            .Keys = {}};
    for (std::int32_t number = 1; number <= CalculatorKeyCount; ++number)
        layout.Keys[static_cast<std::size_t>(number)] = AreaOf(CalculatorKeyAt(number), display);
    return layout;
}

std::int32_t CalculatorLayout::KeyAt(Point point) const {
    const auto key =
        std::find_if(Keys.begin() + 1, Keys.end(), [&](const Rect& area) { return area.Contains(point); });
    return key == Keys.end() ? 0 : static_cast<std::int32_t>(key - Keys.begin());
}

std::int32_t CalculatorLayout::FormulaAt(Point point) const {
    const std::int32_t key = KeyAt(point);
    return key >= FirstFormulaKey ? key - FirstFormulaKey + 1 : 0;
}

Point CalculatorLayout::FaceOf(const Rect& key, std::int32_t number, bool pressed) {
    const Point inset = number >= FirstFormulaKey ? Point{5, 1} : Point{3, 3};
    const std::int32_t shift = pressed ? 1 : 0;
    return {key.Left + inset.X + shift, key.Top + inset.Y + shift};
}

std::string CalculatorLayout::DumpText() const {
    std::string text = DumpLine("pad", Pad) + DumpLine("well", Well) + DumpLine("interior", Interior) +
                       DumpLine("operator", OperatorBox) + DumpLine("number", NumberBox) +
                       DumpLine("keys", KeysArea);
    for (std::size_t number = 1; number < Keys.size(); ++number) {
        if (!Keys[number].IsEmpty()) text += DumpLine("key " + std::to_string(number), Keys[number]);
    }
    return text;
}

Font CalculatorFont(const TextMetrics& metrics, const std::string& family) {
    Font font{family, FontSize, true, false};
    while (font.Size > SmallestFontSize && metrics.LineHeight(font) > CalculatorLayout::TallestText)
        font.Size -= FontSizeStep;
    return font;
}

CalculatorMeasures MeasureCalculator(const TextMetrics& metrics, const Font& font) {
    return {metrics.LineHeight(font), metrics.TextWidth(font, "W")};
}

} // namespace quillgrid
