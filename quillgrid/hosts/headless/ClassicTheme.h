#pragma once

#include "quillgrid/hosts/headless/FakeTheme.h"

namespace quillgrid::headless {

/// The grey desktop for which the defaults of all colours were once chosen.
class ClassicTheme : public FakeTheme {
public:
    Colour Resolve(Colour colour) const override {
        switch (colour) {
        case ColourWindow:
        case ColourHighlightText:
        case ColourButtonHighlight: return Rgb(255, 255, 255);
        case ColourWindowText:
        case ColourDarkShadow: return Rgb(0, 0, 0);
        case ColourHighlight: return Rgb(0, 0, 128);
        case ColourButtonFace: return Rgb(192, 192, 192);
        case ColourButtonShadow: return Rgb(128, 128, 128);
        default: return FakeTheme::Resolve(colour);
        }
    }
};

} // namespace quillgrid::headless
