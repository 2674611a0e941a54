#include "quillgrid/calendar/CalendarTips.h"

#include "quillgrid/calendar/MonthViewBuilder.h"
#include "quillgrid/locale/Format.h"

#include <utility>

namespace quillgrid {

void CalendarTips::Set(std::string text) {
    if (text == shown_) return;
    shown_ = std::move(text);
    state_.Ports.Window.SetTooltip(shown_);
}

void CalendarTips::Forget() {
    midnight_.Disconnect();
    Set({});
}

void CalendarTips::Show(const CalendarPlace& place) {
    midnight_.Disconnect();
    switch (place.What) {
    case CalendarPlace::Kind::Today: return ShowToday();
    case CalendarPlace::Kind::Day: {
        const std::int32_t day = state_.View.DayNumberAt(place.Cell);
        return Set(IsValidDay(day) ? MonthViewBuilder(state_).DayText({day}) : std::string());
    }
    default: return Set({});
    }
}

void CalendarTips::ShowToday() {
    const DateTime now = state_.Ports.Time.Now();
    Set("Heute: " + Format(Variant(DateTime{now.Day}), "Short Date", state_.Ports.UserLocale));
    midnight_ = state_.Ports.Time.After((SecondsPerDay - now.Second) * 1000, [this] { ShowToday(); });
}

} // namespace quillgrid
