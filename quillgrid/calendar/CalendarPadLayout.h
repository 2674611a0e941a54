#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/calendar/CalendarNames.h"
#include "quillgrid/platform/TextMetrics.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace quillgrid {

/// What the pad's geometry depends on, in pixels.
struct QUILLGRID_EXPORT CalendarMeasures {
    Size Present{}; ///< of the surface; the pad never becomes smaller
    std::int32_t TextHeight = 0;
    std::int32_t DayWidth = 0;     ///< of a day's short name or number
    std::int32_t CaptionWidth = 0; ///< of a month and a year

    static CalendarMeasures Of(const TextMetrics& metrics, const Font& font, const CalendarNames& names);
    /// The smallest surface that holds all of it.
    Size Needed() const;
};

/// Where everything of the calendar pad stands.
struct QUILLGRID_EXPORT CalendarPadLayout {
    static constexpr std::int32_t Columns = 7;
    static constexpr std::int32_t Weeks = 6;
    static constexpr std::int32_t Cells = Columns * Weeks;
    /// A month's two stepping buttons stand at the left, a year's at the right.
    enum Button : std::uint8_t { PreviousMonth, NextMonth, PreviousYear, NextYear };

    Rect Pad;
    Rect Caption;
    Rect CaptionText;
    std::array<Rect, 4> Buttons{};
    Rect DayNames;
    Rect GridBox; ///< with its frame
    Rect Grid;    ///< within the frame
    Rect DayArea; ///< without the week numbers
    Rect Bottom;  ///< the status line
    std::int32_t ColumnWidth = 0;
    std::int32_t WeekHeight = 0;

    /// The cell of a place 0 to 41, its lines included at the left and above.
    Rect Cell(std::int32_t cell) const;
    /// What of the cell lies between the lines.
    Rect CellInside(std::int32_t cell) const;
    Rect WeekCell(std::int32_t week) const;
    /// Over a column 0 to 6.
    Rect DayName(std::int32_t column) const;
    /// A column of days from the top of the grid to its bottom.
    Rect Column(std::int32_t column) const;
    std::optional<std::int32_t> CellAt(Point point) const;
    /// The button whose zone a point of the caption is in; zones reach to the ends of the surface.
    std::optional<Button> ButtonAt(Point point) const;

    /// One line a rectangle.
    std::string DumpText() const;
    friend bool operator==(const CalendarPadLayout&, const CalendarPadLayout&) = default;
};

QUILLGRID_EXPORT CalendarPadLayout LayOutCalendar(const CalendarMeasures& measures);

} // namespace quillgrid
