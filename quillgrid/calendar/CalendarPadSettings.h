#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/platform/Font.h"

namespace quillgrid {

/// What the calendar pad keeps beside the calendar's own values, with its defaults.
struct CalendarPadSettings {
    static constexpr Colour White = Rgb(255, 255, 255);
    static constexpr Colour Red = Rgb(255, 0, 0);
    static constexpr Colour Blue = Rgb(0, 0, 255);

    bool Enabled = true;
    bool ShowMenu = true;
    bool ShowButtons = true;
    quillgrid::Font Font; ///< the host's ambient font
    Colour BackColor = ColourWindow;
    Colour ForeColor = ColourWindowText;
    Colour ForeColorSunday = Red;
    Colour ForeColorHoliday = Red;
    Colour ForeColorSaturDay = Blue;
    Colour BackColorSunday = ColourWindow;
    Colour BackColorSaturday = ColourWindow;
    Colour BackColorWeek = ColourButtonFace;
    Colour BackColorGrid = ColourButtonShadow;
    Colour ForeColorWeek = White;
    Colour ForeColorDaynames = White;

    friend bool operator==(const CalendarPadSettings&, const CalendarPadSettings&) = default;
};

} // namespace quillgrid
