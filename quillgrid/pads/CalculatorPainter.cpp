#include "quillgrid/pads/CalculatorPainter.h"

#include "quillgrid/pads/CalculatorCore.h"

#include <algorithm>

namespace quillgrid {

namespace {

// A display is lit from within: it looks alike in light and dark palettes.
constexpr Colour DisplayColour = Rgb(0, 0, 0);
constexpr Colour DigitColour = Rgb(0, 255, 255);
constexpr Colour OutOfLimitsColour = Rgb(255, 0, 0);
constexpr Colour ButtonText = SystemColour(18);

/// How far a line of text may reach above and below the boxes of the display, which are lower than a line.
constexpr std::int32_t Overshoot = 4;
constexpr std::int32_t FaceMargin = 3;
constexpr std::int32_t TextureInset = 6;
constexpr std::int32_t TextureFromBottom = 5;

bool Meet(const Rect& left, const Rect& right) {
    return left.Left < right.Right && right.Left < left.Right && left.Top < right.Bottom &&
           right.Top < left.Bottom;
}

Rect LineOf(const Rect& box) {
    return {box.Left, box.Top - Overshoot, box.Right, box.Bottom + Overshoot};
}

} // namespace

void CalculatorPainter::Paint(const Rect& area, const PressedKeys& pressed) {
    const CalculatorLayout& layout = core_.Layout();
    canvas_.Fill(area, ColourButtonFace);
    canvas_.Edge(layout.Pad, EdgeKind::Raised);
    if (Meet(layout.Well, area)) PaintDisplay();
    for (std::int32_t number = 1; number <= CalculatorKeyCount; ++number) {
        const auto place = static_cast<std::size_t>(number);
        if (Meet(layout.Keys[place], area)) PaintKey(number, pressed[place]);
    }
}

TextStyle CalculatorPainter::StyleOf(Colour ink, AlignmentConstants alignment) const {
    return {.TextFont = font_, .Ink = ink, .Alignment = alignment};
}

void CalculatorPainter::PaintDisplay() {
    const CalculatorLayout& layout = core_.Layout();
    const CalculatorDisplay& display = core_.Display();
    const Colour ink = core_.IsOutOfLimits() ? OutOfLimitsColour : DigitColour;
    canvas_.Edge(layout.Well, EdgeKind::SunkenOuter);
    canvas_.Fill(layout.Interior, DisplayColour);
    canvas_.Text(LineOf(layout.NumberBox), display.Number, StyleOf(ink, qgalRightJustify));
    canvas_.Text(LineOf(layout.OperatorBox), display.Operator, StyleOf(ink, qgalLeftJustify));
}

void CalculatorPainter::PaintKey(std::int32_t number, bool pressed) {
    const Rect& key = core_.Layout().Keys[static_cast<std::size_t>(number)];
    canvas_.Fill(key, ColourButtonFace);
    PaintTexture(key);
    PaintFace(number, key, pressed);
    canvas_.Edge(key, pressed ? EdgeKind::SunkenOuter : EdgeKind::RaisedInner);
}

void CalculatorPainter::PaintFace(std::int32_t number, const Rect& key, bool pressed) {
    if (const Picture* image = ImageOf(number)) {
        const Size size = images_->ImageSize();
        const Point corner = CalculatorLayout::FaceOf(key, number, pressed);
        return canvas_.Image({corner.X, corner.Y, corner.X + size.Width, corner.Y + size.Height}, *image);
    }
    const Rect face = key.Shrunk(FaceMargin).Moved(pressed ? 1 : 0, pressed ? 1 : 0);
    canvas_.Text(face, CalculatorKeyAt(number).Face, StyleOf(ButtonText, qgalCenter));
}

/// A row of dots, like the grip of a real key. Even places are two device pixels at one and a half.
void CalculatorPainter::PaintTexture(const Rect& key) {
    const std::int32_t first = key.Left + TextureInset;
    const std::int32_t y = key.Bottom - TextureFromBottom;
    for (std::int32_t x = first + first % 2; x <= key.Right - TextureInset - 1; x += 2)
        canvas_.Fill({x, y, x + 1, y + 1}, ColourButtonShadow);
}

const Picture* CalculatorPainter::ImageOf(std::int32_t number) const {
    if (!images_ || number < FirstFormulaKey) return nullptr;
    const std::int32_t index = core_.Slots().ImageIndex(number - FirstFormulaKey + 1);
    const ListedImage* image = index > 0 ? images_->At(static_cast<std::size_t>(index)) : nullptr;
    return image ? image->Content.get() : nullptr;
}

} // namespace quillgrid
