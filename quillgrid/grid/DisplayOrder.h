#pragma once

#include "quillgrid/cells/Cell.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/cells/Groups.h"
#include "quillgrid/grid/GridSettings.h"
#include "quillgrid/locale/Locale.h"

#include <memory>
#include <vector>

namespace quillgrid {

/// Whether the cell has a row at this user level.
bool IsShown(const Cell& cell, std::int32_t userLevel);

/// The cells that have a row, in the order of the rows. Grouped: first the cells without a group, then every
/// heading with the cells of its group when that is expanded, then cells whose group has no heading. Sorted
/// without Grouped: all cells but headings. Sorting is by caption, equal ones in the order of adding.
std::vector<std::shared_ptr<Cell>> DisplayOrder(const Cells& cells, const Groups& groups,
                                                const GridSettings& settings, const Locale& locale);

} // namespace quillgrid
