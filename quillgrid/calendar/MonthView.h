#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/CalendarPadLayout.h"
#include "quillgrid/platform/Font.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

namespace quillgrid {

/// The colours of everything in the pad but its days; inks can be read on what they stand on.
struct MonthColours {
    Colour Back = ColourWindow;
    Colour BackSaturday = ColourWindow;
    Colour BackSunday = ColourWindow;
    Colour BackWeek = ColourButtonFace;
    Colour Lines = ColourButtonShadow;
    Colour Week = ColourWindowText;
    Colour DayNames = ColourWindowText;
    Colour Caption = ColourWindowText;
    Colour Highlight = ColourHighlightText;
    Colour Arrows = ColourDarkShadow;

    friend bool operator==(const MonthColours&, const MonthColours&) = default;
};

/// A month as the pad shows it: everything that painting needs beside the layout. It stays as it was made
/// until the pad looks at its properties again, however often the window is painted meanwhile.
struct QUILLGRID_EXPORT MonthView {
    struct Day {
        Colour Ink = ColourWindowText;
        std::optional<Colour> Back{}; ///< of the date range that it belongs to

        friend bool operator==(const Day&, const Day&) = default;
    };

    std::int32_t Year = 0; ///< 0 before the first painting
    std::int32_t Month = 0;
    std::int32_t FirstDay = 0;  ///< the day number of the month's first
    std::int32_t FirstCell = 0; ///< where that stands, 0 to 6
    std::int32_t DayCount = 0;
    std::int32_t Current = 0; ///< the highlighted day of the month, 0 for none
    std::string Caption{};
    std::int32_t YearStart = 0; ///< where in the caption the year begins
    std::string Status{};
    std::array<std::string, CalendarPadLayout::Columns> DayNames{};
    std::int32_t SundayColumn = 0;
    std::int32_t SaturdayColumn = 0;
    std::array<std::int32_t, CalendarPadLayout::Weeks> Weeks{};
    std::array<Day, 31> Days{};
    MonthColours Colours{};
    quillgrid::Font Font{};
    bool ShowsButtons = true;
    bool IsFramedFlat = false; ///< the grid has a plain line around it

    bool IsOf(std::int32_t year, std::int32_t month) const { return Year == year && Month == month; }
    /// The place of a day of the month.
    std::int32_t CellOf(std::int32_t day) const { return FirstCell + day - 1; }
    /// The day number of a place, of a neighbouring month perhaps.
    std::int32_t DayNumberAt(std::int32_t cell) const { return FirstDay + cell - FirstCell; }
    const Day& DayAt(std::int32_t day) const { return Days[static_cast<std::size_t>(day) - 1]; }
    /// What a column of days lies on.
    Colour BackOf(std::int32_t column) const;

    /// The caption, a line of names, a line a week, the status. Days in colours of their own are followed by
    /// the ink and the colour of their range.
    std::string DumpText() const;
    friend bool operator==(const MonthView&, const MonthView&) = default;
};

} // namespace quillgrid
