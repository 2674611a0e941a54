#pragma once

#include "quillgrid/platform/Theme.h"

namespace quillgrid::headless {

/// A desktop with a narrow scroll bar, a few fonts and one printer.
class FakeTheme : public Theme {
public:
    Colour Resolve(Colour colour) const override { return IsSystemColour(colour) ? Rgb(1, 2, 3) : colour; }
    std::int32_t ScrollBarWidth() const override { return 16; }
    std::vector<std::string> ScreenFonts() const override { return {"Arial", "Courier"}; }
    std::vector<std::string> PrinterFonts() const override { return {"Courier"}; }
    std::vector<std::string> Printers() const override { return {"Office"}; }
};

} // namespace quillgrid::headless
