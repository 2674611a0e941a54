#include "quillgrid/calendar/CalendarPainter.h"

#include <string>

namespace quillgrid {

namespace {

/// Columns of an arrow; the last one is twice as high, less one.
constexpr std::int32_t ArrowDepth = 4;

} // namespace

bool CalendarPainter::Touches(const Rect& area) const {
    return area.Left < dirty_.Right && dirty_.Left < area.Right && area.Top < dirty_.Bottom &&
           dirty_.Top < area.Bottom;
}

void CalendarPainter::CentredText(const Rect& area, std::string_view text, Colour ink, bool bold) {
    TextStyle style{.TextFont = view_.Font, .Ink = ink, .Alignment = qgalCenter};
    style.TextFont.Bold = style.TextFont.Bold || bold;
    canvas_.Text(area, text, style);
}

void CalendarPainter::Paint(const Rect& dirty) {
    dirty_ = dirty;
    canvas_.SetClip(dirty);
    canvas_.Fill(dirty, ColourButtonFace);
    canvas_.Edge(layout_.Pad, EdgeKind::Raised);
    if (view_.Year != 0) {
        if (dirty.Top <= layout_.Caption.Bottom + 1) PaintCaption();
        if (Touches(layout_.DayNames)) PaintDayNames();
        if (Touches(layout_.GridBox)) PaintGrid();
        if (Touches(layout_.Bottom)) PaintStatus();
    }
    canvas_.ClearClip();
}

void CalendarPainter::PaintCaption() {
    const Rect& band = layout_.Caption;
    canvas_.Line({band.Left, band.Bottom}, {band.Right, band.Bottom}, ColourButtonShadow);
    canvas_.Line({band.Left, band.Bottom + 1}, {band.Right, band.Bottom + 1}, ColourButtonHighlight);
    CentredText(layout_.CaptionText, view_.Caption, view_.Colours.Caption, true);
    if (view_.ShowsButtons) PaintButtons();
}

void CalendarPainter::PaintButtons() {
    for (std::size_t i = 0; i < layout_.Buttons.size(); ++i) {
        const Rect& button = layout_.Buttons[i];
        canvas_.Edge(button, EdgeKind::RaisedInner);
        PaintArrow(button, i % 2 != 0);
    }
}

void CalendarPainter::PaintArrow(const Rect& button, bool forward) {
    const std::int32_t left = button.Left + (button.Width() - ArrowDepth) / 2;
    const std::int32_t middle = (button.Top + button.Bottom) / 2;
    for (std::int32_t i = 0; i < ArrowDepth; ++i) {
        const std::int32_t x = forward ? left + ArrowDepth - 1 - i : left + i;
        canvas_.Line({x, middle - i}, {x, middle + i + 1}, view_.Colours.Arrows);
    }
}

void CalendarPainter::PaintDayNames() {
    for (std::int32_t column = 0; column < CalendarPadLayout::Columns; ++column)
        CentredText(layout_.DayName(column), view_.DayNames[static_cast<std::size_t>(column)],
                    view_.Colours.DayNames);
}

void CalendarPainter::PaintGrid() {
    if (view_.IsFramedFlat) {
        canvas_.Fill(layout_.GridBox, view_.Colours.Lines);
        canvas_.Fill(layout_.GridBox.Shrunk(1), view_.Colours.Back);
    } else {
        canvas_.Edge(layout_.GridBox, EdgeKind::Sunken);
    }
    PaintBackgrounds();
    PaintLines();
    PaintWeeks();
    PaintDays();
}

void CalendarPainter::PaintBackgrounds() {
    const Rect& grid = layout_.Grid;
    canvas_.Fill(layout_.DayArea, view_.Colours.Back);
    // Pixels that the columns leave over lie at the left and look like the week numbers' own.
    canvas_.Fill({grid.Left, grid.Top, layout_.DayArea.Left, grid.Bottom}, view_.Colours.BackWeek);
    for (const std::int32_t column : {view_.SaturdayColumn, view_.SundayColumn}) {
        if (view_.BackOf(column) != view_.Colours.Back)
            canvas_.Fill(layout_.Column(column), view_.BackOf(column));
    }
}

void CalendarPainter::PaintLines() {
    const Rect& grid = layout_.Grid;
    for (std::int32_t column = 0; column < CalendarPadLayout::Columns; ++column) {
        const std::int32_t x = layout_.Column(column).Left;
        canvas_.Line({x, grid.Top}, {x, grid.Bottom}, view_.Colours.Lines);
    }
    for (std::int32_t week = 1; week < CalendarPadLayout::Weeks; ++week) {
        const std::int32_t y = layout_.WeekCell(week).Top;
        canvas_.Line({grid.Left, y}, {grid.Right, y}, view_.Colours.Lines);
    }
}

void CalendarPainter::PaintWeeks() {
    for (std::int32_t week = 0; week < CalendarPadLayout::Weeks; ++week) {
        const Rect cell = layout_.WeekCell(week);
        if (Touches(cell))
            CentredText(cell, std::to_string(view_.Weeks[static_cast<std::size_t>(week)]),
                        view_.Colours.Week);
    }
}

void CalendarPainter::PaintDays() {
    for (std::int32_t day = 1; day <= view_.DayCount; ++day) {
        if (Touches(layout_.Cell(view_.CellOf(day)))) PaintDay(day);
    }
}

void CalendarPainter::PaintDay(std::int32_t day) {
    const std::int32_t cell = view_.CellOf(day);
    const MonthView::Day& look = view_.DayAt(day);
    const bool current = day == view_.Current;
    if (current) {
        canvas_.Fill(layout_.CellInside(cell), ColourHighlight);
    } else if (look.Back) {
        canvas_.Fill(layout_.Cell(cell).Shrunk(1), *look.Back);
    }
    CentredText(layout_.CellInside(cell), std::to_string(day), current ? view_.Colours.Highlight : look.Ink);
}

void CalendarPainter::PaintStatus() {
    CentredText(layout_.Bottom, view_.Status, view_.Colours.Caption);
}

} // namespace quillgrid
