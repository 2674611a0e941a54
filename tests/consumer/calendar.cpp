#include <quillgrid/calendar/WorkCalendar.h>

#include <cstdio>

int main() {
    quillgrid::WorkCalendar calendar;
    const auto due = calendar.WorkDayAdd({*quillgrid::DayFromDate(2026, 12, 1)}, 10);
    const std::string name = calendar.Dayname(due);
    std::printf("%s\n", name.c_str());
    return due.Day == *quillgrid::DayFromDate(2026, 12, 15) && name == "Dienstag" ? 0 : 1;
}
