#pragma once

#include "quillgrid/cells/Cell.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/platform/Font.h"

namespace quillgrid {

/// The font of a cell's value: CellFont with the cell's own bold and italic.
Font ValueFont(const Cell& cell, const GridSettings& settings);
/// Error, disabled, the cell's own colour, or the control's, whichever comes first.
Colour ValueInk(const Cell& cell, const GridState& state);
Colour ValuePaper(const Cell& cell, const GridState& state);
/// Numbers that are no alignment count as left.
AlignmentConstants LimitedAlignment(AlignmentConstants alignment);

} // namespace quillgrid
