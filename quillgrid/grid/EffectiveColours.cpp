#include "quillgrid/grid/EffectiveColours.h"

namespace quillgrid {

namespace {

EffectiveColours DesktopColours(bool propertyList) {
    EffectiveColours colours;
    if (propertyList) {
        colours.LabelBackground = ColourWindow;
        colours.GroupBox = ColourWindow;
        colours.LabelBackgroundFocus = ColourHighlight;
        colours.LabelTextFocus = ColourHighlightText;
    }
    return colours;
}

EffectiveColours OwnColours(const GridSettings& settings) {
    EffectiveColours colours;
    colours.Background = settings.BackColor;
    colours.CellBackground = settings.CellBackColor;
    colours.CellText = settings.CellForeColor;
    colours.CellErrorText = settings.CellForeColorError;
    colours.CellDisabledText = settings.CellForeColorDisabled;
    colours.CellDisabledBackground = settings.CellBackColorDisabled;
    colours.LabelBackground = settings.LabelBackColor;
    colours.GroupBox = settings.GroupBoxColor;
    colours.LabelBackgroundFocus = settings.LabelBackColorFocus;
    colours.LabelText = settings.LabelForeColor;
    colours.LabelTextFocus = settings.LabelForeColorFocus;
    colours.Grid = settings.Gridcolor;
    return colours;
}

} // namespace

EffectiveColours ColoursOf(const GridSettings& settings) {
    return settings.UseSystemColors ? DesktopColours(settings.Style != qgstDefault) : OwnColours(settings);
}

} // namespace quillgrid
