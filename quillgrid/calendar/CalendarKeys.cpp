#include "quillgrid/calendar/CalendarKeys.h"

#include "quillgrid/calendar/DateSteps.h"

#include <algorithm>
#include <array>

namespace quillgrid {

namespace {

struct KeyRow {
    std::int32_t Code;
    StepUnit Unit;
    std::int32_t Count;
};

constexpr std::array<KeyRow, 8> Keys{{
    {37, StepUnit::Day, -1},   // left
    {39, StepUnit::Day, 1},    // right
    {38, StepUnit::Week, -1},  // up
    {40, StepUnit::Week, 1},   // down
    {33, StepUnit::Month, -1}, // page up
    {34, StepUnit::Month, 1},  // page down
    {36, StepUnit::Year, -1},  // home
    {35, StepUnit::Year, 1},   // end
}};

} // namespace

std::optional<DateTime> DateForKey(WorkCalendar& calendar, std::int32_t keyCode) {
    const auto* key =
        std::find_if(Keys.begin(), Keys.end(), [keyCode](const KeyRow& row) { return row.Code == keyCode; });
    if (key == Keys.end()) return std::nullopt;
    const DateTime date = Stepped(calendar.CurrentDate(), key->Unit, key->Count);
    return key->Unit == StepUnit::Week ? calendar.NearestAllowedDate(date, DateUnit::Week) : date;
}

} // namespace quillgrid
