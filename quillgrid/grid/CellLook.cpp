#include "quillgrid/grid/CellLook.h"

#include "quillgrid/cells/CellAccess.h"

namespace quillgrid {

Font ValueFont(const Cell& cell, const GridSettings& settings) {
    Font font = settings.CellFont;
    font.Bold = cell.FontBold();
    font.Italic = cell.FontItalic();
    return font;
}

Colour ValueInk(const Cell& cell, const GridState& state) {
    if (cell.ErrorCode() != qgErrNone) return state.Colours.CellErrorText;
    if (!cell.Enabled() || state.Settings.UserLevel < cell.UserLevelEnabled())
        return state.Colours.CellDisabledText;
    return CellAccess::HasOwnForeColor(cell) ? cell.ForeColor() : state.Colours.CellText;
}

Colour ValuePaper(const Cell& cell, const GridState& state) {
    const std::int32_t level = state.Settings.UserLevel;
    const bool barred = level < cell.UserLevelDataVisible() || level < cell.UserLevelEnabled();
    return barred ? state.Colours.CellDisabledBackground : state.Colours.CellBackground;
}

AlignmentConstants LimitedAlignment(AlignmentConstants alignment) {
    return alignment == qgalRightJustify || alignment == qgalCenter ? alignment : qgalLeftJustify;
}

} // namespace quillgrid
