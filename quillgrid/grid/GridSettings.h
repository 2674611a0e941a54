#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/platform/Font.h"

#include <cstdint>
#include <string>

namespace quillgrid {

/// The persisted properties of the control as plain values with their defaults. Stored as given: whoever uses
/// a value limits it.
struct GridSettings {
    quillgrid::Font Font;
    quillgrid::Font CellFont;

    Colour BackColor = ColourButtonFace;
    Colour CellForeColor = ColourWindowText;
    Colour CellForeColorDisabled = ColourGreyText;
    Colour CellForeColorError = Rgb(255, 0, 0);
    Colour CellBackColor = ColourWindow;
    Colour CellBackColorDisabled = ColourWindow;
    Colour LabelForeColor = ColourWindowText;
    Colour LabelForeColorFocus = ColourWindowText;
    Colour LabelBackColor = ColourButtonFace;
    Colour LabelBackColorFocus = ColourButtonFace;
    Colour Gridcolor = ColourButtonFace;
    Colour FillColor = ColourDesktop;
    bool UseSystemColors = true;

    StyleConstants Style = qgstPropertyList;
    AlignmentConstants Alignment = qgalLeftJustify;
    BorderStyleConstants BorderStyle = qgbsSunken;
    BevelInnerConstants BevelInner = qgbiNone;
    BevelOuterConstants BevelOuter = qgboNone;
    std::int32_t BorderWidth = 4; ///< pixels
    std::int32_t BevelWidth = 4;  ///< pixels
    std::int32_t LabelWidth = 0;  ///< pixels; 0 measures the captions

    bool Grouped = false;
    bool Sorted = false;

    std::int32_t UserLevel = 0;
    LanguageConstants Language = qglgDefault;
    bool AllowEnter = true;
    bool AllowWrap = true;
    bool AllowEscape = true;
    std::string NumSeparators = ".,";
    std::string DateSeparators = ":/.,#";
    std::string TimeSeparators = ":.,#";
    std::string PasswordChar = "*";
};

} // namespace quillgrid
