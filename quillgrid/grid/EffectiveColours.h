#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/grid/GridSettings.h"

namespace quillgrid {

/// The colours that painting uses: the control's own, or the desktop's while UseSystemColors is true.
struct EffectiveColours {
    Colour Text = ColourWindowText;
    Colour Background = ColourButtonFace;
    Colour CellBackground = ColourWindow;
    Colour CellText = ColourWindowText;
    Colour CellErrorText = Rgb(255, 0, 0);
    Colour CellDisabledText = ColourGreyText;
    Colour CellDisabledBackground = ColourWindow;
    Colour LabelBackground = ColourButtonFace;
    Colour GroupBox = ColourButtonFace;
    Colour LabelBackgroundFocus = ColourButtonFace;
    Colour LabelText = ColourWindowText;
    Colour LabelTextFocus = ColourWindowText;
    Colour Grid = ColourButtonFace;

    friend bool operator==(const EffectiveColours&, const EffectiveColours&) = default;
};

EffectiveColours ColoursOf(const GridSettings& settings);

} // namespace quillgrid
