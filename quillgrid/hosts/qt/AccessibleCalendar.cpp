#include "quillgrid/hosts/qt/AccessibleCalendar.h"

#include "quillgrid/calendar/CalendarPlace.h"
#include "quillgrid/hosts/qt/AccessibleDay.h"
#include "quillgrid/hosts/qt/AccessibleMonth.h"
#include "quillgrid/hosts/qt/Conversions.h"

#include <array>

namespace quillgrid::qt {

namespace {

struct CaptionEntry {
    const char* English;
    const char* German;
    const char* Key;
};

/// By part, from `PreviousMonth` to `NextYear`.
constexpr std::array<CaptionEntry, 6> CaptionEntries{{
    {"Previous month", "Voriger Monat", "Page Up"},
    {"Next month", "Nächster Monat", "Page Down"},
    {"Month", "Monat", "F10"},
    {"Year", "Jahr", "Shift+F10"},
    {"Previous year", "Voriges Jahr", "Home"},
    {"Next year", "Nächstes Jahr", "End"},
}};

QDate DateOf(std::int32_t day) {
    return QDate(1899, 12, 30).addDays(day);
}

bool IsMenu(int number) {
    return number == AccessibleCalendar::Months || number == AccessibleCalendar::Years;
}

Rect CaptionArea(const CalendarPadLayout& layout, const MonthView& view, int number) {
    using Calendar = AccessibleCalendar;
    Rect text = layout.CaptionText;
    switch (number) {
    case Calendar::PreviousMonth: return layout.Buttons[CalendarPadLayout::PreviousMonth];
    case Calendar::NextMonth: return layout.Buttons[CalendarPadLayout::NextMonth];
    case Calendar::PreviousYear: return layout.Buttons[CalendarPadLayout::PreviousYear];
    case Calendar::NextYear: return layout.Buttons[CalendarPadLayout::NextYear];
    case Calendar::Months: text.Right = view.YearStart; return text;
    default: text.Left = view.YearStart; return text;
    }
}

} // namespace

QString AccessibleCalendar::Name() const {
    return Calendar() ? ToQString(Calendar()->Pad().View().Caption) : QString();
}

QString AccessibleCalendar::Value() const {
    return Part(Current()).Name;
}

int AccessibleCalendar::Current() const {
    if (!Calendar()) return 0;
    const MonthView& view = Calendar()->Pad().View();
    return view.Current > 0 ? FirstDay + view.CellOf(view.Current) : 0;
}

int AccessibleCalendar::CountIn(int container) const {
    if (!Calendar()) return 0;
    return container == Whole ? FirstDay - 1 : container == Month ? CalendarPadLayout::Cells : 0;
}

int AccessibleCalendar::NumberIn(int container, int place) const {
    if (place < 0 || place >= CountIn(container)) return 0;
    return container == Month ? FirstDay + place : place + 1;
}

int AccessibleCalendar::NumberAt(Point point) const {
    if (!Calendar()) return 0;
    const QGCalendar& pad = Calendar()->Pad();
    const CalendarPlace place = CalendarPlace::At(point, pad.Layout(), pad.View(), pad.ShowButtons());
    constexpr std::array<int, 4> buttons{PreviousMonth, NextMonth, PreviousYear, NextYear};
    switch (place.What) {
    case CalendarPlace::Kind::Month: return Months;
    case CalendarPlace::Kind::Year: return Years;
    case CalendarPlace::Kind::Button: return buttons[place.Which];
    case CalendarPlace::Kind::Day: return FirstDay + place.Cell;
    case CalendarPlace::Kind::Today: return Today;
    default: return pad.Layout().Grid.Contains(point) ? Month : 0;
    }
}

PadPart AccessibleCalendar::Part(int number) const {
    if (!Calendar() || number < 1 || number >= FirstDay + CalendarPadLayout::Cells) return {};
    if (number >= FirstDay) return DayPart(number - FirstDay);
    const QGCalendar& pad = Calendar()->Pad();
    if (number < Month) return CaptionPart(number);
    if (number == Month) return {.Role = QAccessible::Table, .Name = Name(), .Area = pad.Layout().DayArea};
    PadPart today{.Role = QAccessible::Button, .Name = Said("Today", "Heute")};
    today.Description = ToQString(pad.View().Status);
    today.Key = QStringLiteral("Ctrl+Home");
    today.Area = pad.Layout().Bottom;
    today.State.disabled = !pad.Enabled();
    today.Presses = true;
    return today;
}

PadPart AccessibleCalendar::CaptionPart(int number) const {
    const QGCalendar& pad = Calendar()->Pad();
    const CaptionEntry& entry = CaptionEntries[static_cast<std::size_t>(number - PreviousMonth)];
    const bool there = IsMenu(number) || pad.ShowButtons();
    PadPart part{.Role = IsMenu(number) ? QAccessible::ButtonMenu : QAccessible::Button,
                 .Name = Said(entry.English, entry.German),
                 .Key = QString::fromLatin1(entry.Key)};
    if (there) part.Area = CaptionArea(pad.Layout(), pad.View(), number);
    part.State.disabled = !pad.Enabled();
    part.State.hasPopup = IsMenu(number);
    part.Presses = there;
    return part;
}

PadPart AccessibleCalendar::DayPart(int cell) const {
    QGCalendar& pad = Calendar()->Pad();
    const std::int32_t day = pad.View().DayNumberAt(cell);
    PadPart part{.Role = QAccessible::Cell, .Area = pad.Layout().Cell(cell)};
    if (!IsValidDay(day)) return part;
    const bool current = FirstDay + cell == Current();
    part.Name = widget()->locale().toString(DateOf(day), QLocale::LongFormat);
    part.Description = ToQString(pad.HolidayName({day}));
    part.State.selectable = true;
    part.State.selected = current;
    part.State.disabled = !pad.Enabled() || !pad.Calendar().IsAllowed({day});
    part.Presses = part.TakesFocus = true;
    return part;
}

void AccessibleCalendar::GoTo(int number) {
    if (!Calendar() || number < FirstDay) return;
    QGCalendar& pad = Calendar()->Pad();
    const std::int32_t day = pad.View().DayNumberAt(number - FirstDay);
    if (IsValidDay(day)) pad.SetCurrentDate({day});
}

AccessiblePart* AccessibleCalendar::Make(int number) const {
    if (number == Month) return new AccessibleMonth(*widget(), number);
    if (number >= FirstDay) return new AccessibleDay(*widget(), number);
    return AccessiblePad::Make(number);
}

QString AccessibleCalendar::DayName(int column) const {
    if (!Calendar() || column < 0 || column >= CalendarPadLayout::Columns) return {};
    const QDate day = DateOf(Calendar()->Pad().View().DayNumberAt(column));
    return widget()->locale().dayName(day.dayOfWeek());
}

QString AccessibleCalendar::WeekName(int week) const {
    if (!Calendar() || week < 0 || week >= CalendarPadLayout::Weeks) return {};
    const std::int32_t number = Calendar()->Pad().View().Weeks[static_cast<std::size_t>(week)];
    return Said("Week", "Woche") + u' ' + QString::number(number);
}

} // namespace quillgrid::qt
