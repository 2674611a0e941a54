#include "quillgrid/calendar/CalendarPadLayout.h"

#include <algorithm>
#include <string_view>

namespace quillgrid {

namespace {

constexpr std::int32_t LeftMargin = 33;
constexpr std::int32_t RightMargin = 36;
/// Where a margin changes from one of its buttons to the other, counted from the surface's side.
constexpr std::int32_t LeftBorder = 16;
constexpr std::int32_t RightBorder = RightMargin - 16;
constexpr std::int32_t ButtonWidth = 14;
/// No screen is that large, and sums stay far from the end of the numbers.
constexpr std::int32_t Largest = 32'000;

void PlaceButtons(CalendarPadLayout& layout) {
    const std::int32_t top = layout.Caption.Top + 1;
    const std::int32_t bottom = layout.Caption.Bottom - 1;
    const std::int32_t right = layout.Pad.Right - RightBorder;
    const auto leftOf = [=](std::int32_t x) { return Rect{x - ButtonWidth, top, x, bottom}; };
    layout.Buttons = {leftOf(LeftBorder), leftOf(LeftBorder + ButtonWidth), leftOf(right),
                      leftOf(right + ButtonWidth)};
}

void PlaceGrid(CalendarPadLayout& layout, std::int32_t row) {
    const std::int32_t width = layout.Pad.Width();
    const std::int32_t top = 2 * row + 3;
    layout.WeekHeight = std::max((layout.Pad.Height() - 3 * row - 6) / CalendarPadLayout::Weeks, 1);
    layout.GridBox = {4, top, width - 5, top + CalendarPadLayout::Weeks * layout.WeekHeight + 4};
    layout.Grid = layout.GridBox.Shrunk(2);
    layout.ColumnWidth = std::max(layout.Grid.Width() / 8, 1);
    const std::int32_t offset = layout.Grid.Width() % 8;
    layout.DayArea = layout.Grid;
    layout.DayArea.Left += offset + layout.ColumnWidth;
}

std::string Line(std::string_view name, const Rect& rect) {
    return std::string(name) + " " + std::to_string(rect.Left) + "," + std::to_string(rect.Top) + " - " +
           std::to_string(rect.Right) + "," + std::to_string(rect.Bottom) + "\n";
}

} // namespace

CalendarMeasures CalendarMeasures::Of(const TextMetrics& metrics, const Font& font,
                                      const CalendarNames& names) {
    const auto widthOf = [&](std::string_view text) { return metrics.TextWidth(font, text); };
    return {.TextHeight = metrics.LineHeight(font),
            .DayWidth = std::max(widthOf(names.ShortDays[0]), widthOf("00")),
            .CaptionWidth = widthOf(names.LongMonths[0] + " 0000")};
}

Size CalendarMeasures::Needed() const {
    return {std::clamp(std::max(CaptionWidth + 70, DayWidth * 8 + 61), 0, Largest),
            std::clamp((TextHeight + 6) * 9 + 3, 0, Largest)};
}

CalendarPadLayout LayOutCalendar(const CalendarMeasures& measures) {
    const Size needed = measures.Needed();
    const std::int32_t width = std::max(std::min(measures.Present.Width, Largest), needed.Width);
    const std::int32_t height = std::max(std::min(measures.Present.Height, Largest), needed.Height);
    const std::int32_t row = std::clamp(measures.TextHeight, 0, Largest) + 6;
    CalendarPadLayout layout;
    layout.Pad = {0, 0, width, height};
    layout.Caption = {1, 1, width - 2, row + 1};
    layout.CaptionText = {LeftMargin, 3, width - RightMargin, row - 1};
    layout.DayNames = {1, row + 3, width - 2, 2 * row + 3};
    PlaceButtons(layout);
    PlaceGrid(layout, row);
    layout.Bottom = {layout.GridBox.Left, layout.GridBox.Bottom + 2, layout.GridBox.Right, height - 4};
    return layout;
}

Rect CalendarPadLayout::Column(std::int32_t column) const {
    const std::int32_t left = DayArea.Left + column * ColumnWidth;
    return {left, Grid.Top, left + ColumnWidth, Grid.Bottom};
}

Rect CalendarPadLayout::Cell(std::int32_t cell) const {
    Rect area = Column(cell % Columns);
    area.Top += cell / Columns * WeekHeight;
    area.Bottom = area.Top + WeekHeight;
    return area;
}

Rect CalendarPadLayout::CellInside(std::int32_t cell) const {
    const Rect area = Cell(cell);
    return {area.Left + 1, area.Top + (cell < Columns ? 0 : 1), area.Right, area.Bottom};
}

Rect CalendarPadLayout::WeekCell(std::int32_t week) const {
    const std::int32_t top = Grid.Top + week * WeekHeight;
    return {DayArea.Left - ColumnWidth, top, DayArea.Left, top + WeekHeight};
}

Rect CalendarPadLayout::DayName(std::int32_t column) const {
    const Rect below = Column(column);
    return {below.Left, DayNames.Top, below.Right, DayNames.Bottom};
}

std::optional<std::int32_t> CalendarPadLayout::CellAt(Point point) const {
    if (!DayArea.Contains(point)) return std::nullopt;
    const std::int32_t column = (point.X - DayArea.Left) / ColumnWidth;
    const std::int32_t week = (point.Y - DayArea.Top) / WeekHeight;
    if (column >= Columns || week >= Weeks) return std::nullopt;
    return week * Columns + column;
}

std::optional<CalendarPadLayout::Button> CalendarPadLayout::ButtonAt(Point point) const {
    if (!Pad.Contains(point) || point.Y < CaptionText.Top || point.Y >= CaptionText.Bottom)
        return std::nullopt;
    if (point.X < CaptionText.Left) return point.X < LeftBorder ? PreviousMonth : NextMonth;
    if (point.X < CaptionText.Right) return std::nullopt;
    return point.X < Pad.Right - RightBorder ? PreviousYear : NextYear;
}

std::string CalendarPadLayout::DumpText() const {
    std::string text = Line("pad", Pad) + Line("caption", Caption) + Line("caption text", CaptionText);
    for (const Rect& button : Buttons)
        text += Line("button", button);
    return text + Line("day names", DayNames) + Line("grid box", GridBox) + Line("grid", Grid) +
           Line("day area", DayArea) + Line("week 6", WeekCell(Weeks - 1)) + Line("cell 1", Cell(0)) +
           Line("cell 42", Cell(Cells - 1)) + Line("bottom", Bottom);
}

} // namespace quillgrid
