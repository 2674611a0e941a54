#include "quillgrid/calendar/CalendarMenus.h"

#include "quillgrid/calendar/DateSteps.h"

#include <utility>

namespace quillgrid {

namespace {

constexpr std::int32_t YearsEachWay = 2;

} // namespace

void CalendarMenus::Show(Point at, const std::vector<PopupEntry>& entries,
                         std::function<DateTime(std::size_t)> dateOf) {
    const Point below{at.X, state_.Layout.Caption.Bottom + 2};
    state_.Ports.Menu.Show(
        below, entries,
        [this, life = std::weak_ptr<bool>(state_.Life), dateOf = std::move(dateOf)](std::size_t chosen) {
            if (!life.expired() && state_.Settings.Enabled) commands_.GoTo(dateOf(chosen));
        });
}

void CalendarMenus::ShowMonths(Point at) {
    const std::int32_t current = PartsFromDay(state_.Days.CurrentDate().Day).Month;
    std::vector<PopupEntry> entries;
    for (const std::string& name : state_.Names.LongMonths)
        entries.push_back({name, static_cast<std::int32_t>(entries.size()) + 1 == current});
    Show(at, entries, [this](std::size_t chosen) {
        return WithMonth(state_.Days.CurrentDate(), static_cast<std::int32_t>(chosen) + 1);
    });
}

void CalendarMenus::ShowYears(Point at) {
    const std::int32_t current = PartsFromDay(state_.Days.CurrentDate().Day).Year;
    std::vector<PopupEntry> entries;
    for (std::int32_t year = current - YearsEachWay; year <= current + YearsEachWay; ++year)
        entries.push_back({std::to_string(year), year == current});
    Show(at, entries, [this, current](std::size_t chosen) {
        return WithYear(state_.Days.CurrentDate(),
                        current - YearsEachWay + static_cast<std::int32_t>(chosen));
    });
}

} // namespace quillgrid
