#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/pads/ListPadSettings.h"

#include <cstdint>
#include <string>

namespace quillgrid {

/// What the list pad's geometry depends on besides its settings, in logical pixels.
struct ListPadMeasures {
    std::int32_t RowCount = 0;
    std::int32_t TextHeight = 0;
    std::int32_t TextWidth = 0;        ///< of the widest row; looked at with AutoSize alone
    std::int32_t ImageColumnWidth = 0; ///< 0 without images and swatches
    std::int32_t ImageHeight = 0;
    std::int32_t ScrollBarWidth = 0; ///< of the desktop
    std::int32_t CellWidth = 0;      ///< the least width; 0 without a cell
    std::int32_t PadWidth = 0;       ///< kept without AutoSize
};

/// Where the parts of one row stand, relative to the top left of the rows in view.
struct ListPadRow {
    Rect Area;
    Rect Text;
    Rect Swatch; ///< of a colour list
    Point Image; ///< top left of the listed image

    friend bool operator==(const ListPadRow&, const ListPadRow&) = default;
};

/// Where everything of the list pad stands. Nothing in here depends on how far the rows are scrolled, and no
/// row is looked at.
struct QUILLGRID_EXPORT ListPadLayout {
    std::int32_t BorderWidth = 0;
    std::int32_t RowHeight = 1;
    std::int32_t RowCount = 0;
    std::int32_t ShownRows = 0;
    std::int32_t ImageColumnWidth = 0;
    std::int32_t TextColumnWidth = 0;
    std::int32_t ImageTop = 0; ///< inside a row
    std::int32_t TextTop = 0;  ///< inside a row
    std::int64_t SurfaceHeight = 0;
    std::int32_t ScrollMaximum = 1;
    Size Pad;
    Rect Frame;     ///< inside the border
    Rect Rows;      ///< the rows in view, relative to the frame
    Rect ScrollBar; ///< relative to the frame; empty while hidden

    bool ScrollBarShown() const { return !ScrollBar.IsEmpty(); }
    /// The row 1.. with `indent` steps of indentation, when `position` rows are scrolled out at the top.
    ListPadRow RowAt(std::int32_t row, std::int32_t position, std::int32_t indent = 0) const;
    /// The row at a height below the top of the rows in view. Beyond the last row it counts on; above the
    /// first it may be 0 or less.
    std::int32_t RowUnder(std::int32_t y, std::int32_t position) const;

    /// One line a rectangle or measure.
    std::string DumpText() const;
    friend bool operator==(const ListPadLayout&, const ListPadLayout&) = default;
};

QUILLGRID_EXPORT ListPadLayout LayOutListPad(const ListPadSettings& settings,
                                             const ListPadMeasures& measures);

} // namespace quillgrid
