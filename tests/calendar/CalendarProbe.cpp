// Answers questions from the standard input, one a line, so that a script can hold the calendar against
// others:
//   preset NUMBER ENABLE_STRING | easter YEAR | list YEAR | diff DAY DAY | add DAY COUNT
// Days are day numbers. `list` gives the days of the enabled rules.
#include "quillgrid/calendar/WorkCalendar.h"

#include <iostream>
#include <string>

using namespace quillgrid;

namespace {

void Load(WorkCalendar& calendar, std::istream& in) {
    std::int32_t preset = 0;
    std::string flags;
    in >> preset >> flags;
    CalendarSettings& settings = calendar.Settings();
    settings.ConfigGermany = settings.ConfigAustria = settings.ConfigSwitzerland = settings.ConfigEurope =
        flags;
    calendar.SetAutoHolidays(AutoHolidayConstants{preset});
}

void List(WorkCalendar& calendar, std::int32_t year) {
    calendar.ResolveHolidays({*DayFromDate(year, 1, 1)});
    for (const auto& rule : *calendar.Holidays()) {
        if (rule->Enabled()) std::cout << rule->DateValue().Day << " ";
    }
    std::cout << "\n";
}

} // namespace

int main() {
    std::ios::sync_with_stdio(false);
    WorkCalendar calendar;
    std::string question;
    while (std::cin >> question) {
        std::int32_t first = 0, second = 0;
        if (question == "preset") {
            Load(calendar, std::cin);
            continue;
        }
        std::cin >> first;
        if (question == "diff" || question == "add") std::cin >> second;
        if (question == "easter") std::cout << EasterDay(first) << "\n";
        if (question == "list") List(calendar, first);
        if (question == "diff") std::cout << calendar.WorkDayDiff({first}, {second}) << "\n";
        if (question == "add") std::cout << calendar.WorkDayAdd({first}, second).Day << "\n";
    }
}
