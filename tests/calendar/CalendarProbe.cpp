// Answers questions from the standard input, one a line, so that a script can hold the calendar against
// others:
//   preset NUMBER ENABLE_STRING | easter YEAR | list YEAR | diff DAY DAY | add DAY COUNT
//   weeks FIRST_DAY_OF_WEEK RULE DAY DAY
// Days are day numbers. `list` gives the days of the enabled rules, `weeks` the numbers of the week of each
// day.
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

void Weeks(std::istream& in) {
    std::int32_t firstDay = 0, rule = 0, first = 0, last = 0;
    in >> firstDay >> rule >> first >> last;
    for (std::int32_t day = first; day <= last; ++day)
        std::cout << WeekOfYear(day, DayOfWeekConstants{firstDay}, FirstWeekOfYearConstants{rule}) << " ";
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
        if (question == "weeks") {
            Weeks(std::cin);
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
