#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/platform/Font.h"

#include <cstdint>
#include <string>

namespace quillgrid {

/// The persisted properties of the control as plain values. Stored as given, from a saved form too: whoever
/// uses a value limits it. Their defaults and rules stand in the property table; a fresh struct is all zero.
struct GridSettings {
    quillgrid::Font Font;
    quillgrid::Font CellFont;
    quillgrid::Font CaptionFont;
    std::string Caption;
    std::string TooltipText;

    Colour BackColor = 0;
    Colour CellForeColor = 0;
    Colour CellForeColorDisabled = 0;
    Colour CellForeColorError = 0;
    Colour CellBackColor = 0;
    Colour CellBackColorDisabled = 0;
    Colour LabelForeColor = 0;
    Colour LabelForeColorFocus = 0;
    Colour LabelBackColor = 0;
    Colour LabelBackColorFocus = 0;
    Colour Gridcolor = 0;
    Colour GroupBoxColor = 0;
    Colour FillColor = 0;
    bool UseSystemColors = false;

    StyleConstants Style = qgstDefault;
    AppearanceConstants Appearance = qgap3D;
    AlignmentConstants Alignment = qgalLeftJustify;
    BorderStyleConstants BorderStyle = qgbsNone;
    BevelInnerConstants BevelInner = qgbiNone;
    BevelOuterConstants BevelOuter = qgboNone;
    std::int32_t BorderWidth = 0; ///< pixels
    std::int32_t BevelWidth = 0;  ///< pixels
    std::int32_t LabelWidth = 0;  ///< pixels; 0 measures the captions

    bool ShowCaption = false;
    bool ShowCloseBox = false;
    bool ShowMenuBox = false;
    bool ShowGroupBox = false;
    bool ShowTips = false;

    std::int32_t CellCount = 0;
    bool Grouped = false;
    bool Sorted = false;

    std::int32_t UserLevel = 0;
    LanguageConstants Language = qglgDefault;
    bool AllowEnter = false;
    bool AllowWrap = false;
    bool AllowEscape = false;
    std::string NumSeparators;
    std::string DateSeparators;
    std::string TimeSeparators;
    std::string PasswordChar;

    AutoHolidayConstants AutoHolidays = qgahdNone;
    bool AllowHoliday = false;
    bool AllowSaturday = false;
    bool AllowSunday = false;
    bool WorkHoliday = false;
    bool WorkSaturday = false;
    bool WorkSunday = false;
    DayOfWeekConstants FirstDayOfWeek = qgdwUseSystem;
    FirstWeekOfYearConstants FirstWeekOfYear = qgfwUseSystem;
};

} // namespace quillgrid
