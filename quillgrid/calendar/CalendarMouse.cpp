#include "quillgrid/calendar/CalendarMouse.h"

#include "quillgrid/calendar/DateSteps.h"

#include <utility>

namespace quillgrid {

void CalendarMouse::Down(Point point, PadButton button) {
    Cancel();
    const CalendarPlace place = PlaceAt(point);
    const bool left = button == PadButton::Left;
    switch (place.What) {
    case CalendarPlace::Kind::Outside: commands_.Confirm(); return;
    case CalendarPlace::Kind::Month:
    case CalendarPlace::Kind::Year: return OpenMenu(point);
    case CalendarPlace::Kind::Button:
        if (left) return PressButton(place.Which);
        if (button == PadButton::Right) OpenMenu(point);
        return;
    case CalendarPlace::Kind::Day:
        if (left) PickDay(place.Cell);
        return; // the menu of the right button has no entries, so there is nothing to show
    case CalendarPlace::Kind::Today: return PickToday();
    case CalendarPlace::Kind::Nowhere: return;
    }
}

void CalendarMouse::OpenMenu(Point point) {
    if (point.X >= state_.View.YearStart) return menus_.ShowYears(point);
    menus_.ShowMonths(point);
}

void CalendarMouse::PressButton(CalendarPadLayout::Button which) {
    repeater_.Start([this, which] { return Step(which); });
}

/// False when there is nothing left to step: the pad is gone, or the date cannot move.
bool CalendarMouse::Step(CalendarPadLayout::Button which) {
    using Layout = CalendarPadLayout;
    const bool byMonth = which == Layout::PreviousMonth || which == Layout::NextMonth;
    const bool forward = which == Layout::NextMonth || which == Layout::NextYear;
    const std::int32_t before = state_.Days.CurrentDate().Day;
    const DateTime next =
        Stepped(state_.Days.CurrentDate(), byMonth ? StepUnit::Month : StepUnit::Year, forward ? 1 : -1);
    return commands_.GoTo(state_.Days.NearestAllowedDate(next)) && state_.Settings.Enabled &&
           state_.Days.CurrentDate().Day != before;
}

void CalendarMouse::PickDay(std::int32_t cell) {
    const std::int32_t day = state_.View.DayNumberAt(cell);
    if (!IsValidDay(day) || !state_.Days.IsAllowed({day})) return;
    pressedCell_ = cell;
    commands_.GoTo({day});
}

void CalendarMouse::PickToday() {
    const DateTime today{state_.Ports.Time.Now().Day};
    if (state_.Days.IsAllowed(today)) commands_.GoTo(today);
}

void CalendarMouse::Up(Point point) {
    repeater_.Stop();
    const auto pressed = std::exchange(pressedCell_, std::nullopt);
    const CalendarPlace place = PlaceAt(point);
    if (pressed && place.What == CalendarPlace::Kind::Day && place.Cell == *pressed) commands_.Confirm();
}

void CalendarMouse::Cancel() {
    repeater_.Stop();
    pressedCell_.reset();
}

} // namespace quillgrid
