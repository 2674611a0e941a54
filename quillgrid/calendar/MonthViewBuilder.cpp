#include "quillgrid/calendar/MonthViewBuilder.h"

#include "quillgrid/calendar/LegibleInk.h"
#include "quillgrid/locale/Format.h"

#include <cstdio>

namespace quillgrid {

namespace {

std::string YearText(std::int32_t year) {
    char text[16];
    std::snprintf(text, sizeof text, "%04d", year);
    return text;
}

Font Bold(Font font) {
    font.Bold = true;
    return font;
}

} // namespace

MonthView MonthViewBuilder::Build() {
    const std::int32_t today = NearestValidDay(state_.Days.CurrentDate().Day);
    const CivilDate date = PartsFromDay(today);
    MonthView view{.Year = date.Year,
                   .Month = date.Month,
                   .FirstDay = today - date.Day + 1,
                   .DayCount = DaysInMonth(date.Year, date.Month),
                   .DayNames = state_.Names.ShortDays,
                   .SundayColumn = state_.Names.SundayColumn(),
                   .SaturdayColumn = state_.Names.SaturdayColumn(),
                   .Font = state_.Settings.Font,
                   .ShowsButtons = state_.Settings.ShowButtons,
                   .IsFramedFlat = state_.Settings.BackColor == ColourButtonFace};
    state_.Days.ShowMonth({today});
    view.FirstCell = Weekday(view.FirstDay, state_.Names.FirstDay) - 1;
    Mark(view, today);
    NameMonth(view);
    CountWeeks(view);
    ColourParts(view);
    ColourDays(view);
    return view;
}

void MonthViewBuilder::NameMonth(MonthView& view) const {
    const std::string month = state_.Names.LongMonths[static_cast<std::size_t>(view.Month) - 1] + " ";
    view.Caption = month + YearText(view.Year);
    const Font font = Bold(view.Font);
    const Rect& room = state_.Layout.CaptionText;
    const std::int32_t width = state_.Ports.Metrics.TextWidth(font, view.Caption);
    view.YearStart = room.Left + (room.Width() - width) / 2 + state_.Ports.Metrics.TextWidth(font, month);
}

void MonthViewBuilder::CountWeeks(MonthView& view) const {
    std::int32_t day = view.FirstDay;
    for (std::int32_t& week : view.Weeks) {
        week = WeekOfYear(NearestValidDay(day), state_.Names.FirstDay, state_.Names.FirstWeek);
        day += 7;
    }
}

Colour MonthViewBuilder::Legible(Colour ink, Colour paper) const {
    return LegibleInk(state_.Ports.Desktop, ink, paper);
}

void MonthViewBuilder::ColourParts(MonthView& view) const {
    const CalendarPadSettings& settings = state_.Settings;
    view.Colours = {.Back = settings.BackColor,
                    .BackSaturday = settings.BackColorSaturday,
                    .BackSunday = settings.BackColorSunday,
                    .BackWeek = settings.BackColorWeek,
                    .Lines = settings.BackColorGrid,
                    .Week = Legible(settings.ForeColorWeek, settings.BackColorWeek),
                    .DayNames = Legible(settings.ForeColorDaynames, ColourButtonFace),
                    .Caption = Legible(settings.ForeColor, ColourButtonFace),
                    .Highlight = Legible(ColourHighlightText, ColourHighlight),
                    .Arrows = Legible(ColourDarkShadow, ColourButtonFace)};
}

void MonthViewBuilder::ColourDays(MonthView& view) {
    for (std::int32_t day = 1; day <= view.DayCount; ++day) {
        MonthView::Day& look = view.Days[static_cast<std::size_t>(day) - 1];
        const auto range = state_.Ranges.Find({view.FirstDay + day - 1});
        const bool coloured = range && !range->Key().empty();
        if (coloured) look.Back = range->BackColor();
        const Colour paper = look.Back.value_or(view.BackOf(view.CellOf(day) % CalendarPadLayout::Columns));
        const Colour plain = coloured ? range->ForeColor() : state_.Settings.ForeColor;
        look.Ink = Legible(InkOf(view, day, plain), paper);
    }
}

Colour MonthViewBuilder::InkOf(const MonthView& view, std::int32_t day, Colour plain) {
    const std::int32_t column = view.CellOf(day) % CalendarPadLayout::Columns;
    if (state_.Days.Table().IsMarked(day)) return state_.Settings.ForeColorHoliday;
    if (column == view.SundayColumn) return state_.Settings.ForeColorSunday;
    return column == view.SaturdayColumn ? state_.Settings.ForeColorSaturDay : plain;
}

void MonthViewBuilder::Mark(MonthView& view, std::int32_t day) {
    view.Current = state_.MarksDate ? PartsFromDay(day).Day : 0;
    view.Status = state_.MarksDate ? DayText({day}) : std::string();
}

void MonthViewBuilder::MoveTo(DateTime date) {
    Mark(state_.View, NearestValidDay(date.Day));
}

std::string MonthViewBuilder::DayText(DateTime date) {
    const std::int32_t day = NearestValidDay(date.Day);
    std::string text = state_.Days.VisitMonth({day}).Name(PartsFromDay(day).Day);
    if (text.empty()) {
        const auto column = static_cast<std::size_t>(Weekday(day, state_.Names.FirstDay)) - 1;
        text = state_.Names.LongDays[column] + " " +
               Format(Variant(DateTime{day}), "Short Date", state_.Ports.UserLocale);
    }
    state_.Days.VisitMonth(state_.Days.CurrentDate());
    return text;
}

} // namespace quillgrid
