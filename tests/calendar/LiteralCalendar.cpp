#include "tests/calendar/LiteralCalendar.h"

#include "quillgrid/calendar/HolidayPresets.h"

namespace quillgrid::test {

namespace {

void ShowDate(LiteralRule& rule, std::optional<std::int32_t> day, int year) {
    rule.Year = year;
    rule.Month = rule.Day = 0;
    if (!day || !IsValidDay(*day)) return;
    rule.Month = PartsFromDay(*day).Month;
    rule.Day = PartsFromDay(*day).Day;
}

} // namespace

LiteralCalendar::LiteralCalendar(std::int32_t current) {
    Settings.CurrentDate = {current};
    Reload();
}

void LiteralCalendar::Reload() {
    Rules.clear();
    const auto* preset = FindPreset(Settings.AutoHolidays);
    const std::string& config = Settings.AutoHolidays == 1   ? Settings.ConfigGermany
                                : Settings.AutoHolidays == 2 ? Settings.ConfigAustria
                                : Settings.AutoHolidays == 3 ? Settings.ConfigSwitzerland
                                                             : Settings.ConfigEurope;
    for (std::size_t i = 0; preset && i < static_cast<std::size_t>(preset->Size); ++i) {
        const PresetRule& rule = preset->Rules[i];
        Rules.push_back({.Type = rule.DayType,
                         .InputMonth = rule.Month,
                         .Month = rule.Month,
                         .Day = rule.Day,
                         .Shift = rule.Shift,
                         .Enabled = i >= config.size() || config[i] == '1',
                         .Name = std::string(rule.Key)});
    }
    Resolve(Settings.CurrentDate.Day);
    Build(Settings.CurrentDate.Day);
}

void LiteralCalendar::ResolveRule(LiteralRule& rule, int year) {
    if (rule.Type == qghtDaysFromEaster) {
        ShowDate(rule, EasterDay(year) + rule.Shift, year);
    } else if (rule.Type == qghtDaysFromGermanBusstag) {
        ShowDate(rule, BusstagDay(year) + rule.Shift, year);
    } else if (rule.Type >= 91 && rule.Type <= 93) {
        ShowDate(rule, User[static_cast<std::size_t>(rule.Type - 91)] + rule.Shift, year);
    } else if (rule.Type >= 11 && rule.Type <= 17) {
        auto day = DayFromParts(year, rule.InputMonth, 1);
        while (day && Weekday(*day) != rule.Type - 10)
            ++*day;
        for (int n = 1; day && n < rule.Shift; ++n)
            *day += 7;
        ShowDate(rule, day, year);
    }
    rule.Year = year;
}

void LiteralCalendar::Resolve(std::int32_t day) {
    year_ = PartsFromDay(day).Year;
    for (LiteralRule& rule : Rules)
        ResolveRule(rule, year_);
}

void LiteralCalendar::Build(std::int32_t day) {
    tableYear_ = PartsFromDay(day).Year;
    tableMonth_ = PartsFromDay(day).Month;
    marks_ = {};
    names_ = {};
    for (const LiteralRule& rule : Rules) {
        if (rule.Month != tableMonth_ || rule.Day < 1) continue;
        const auto place = static_cast<std::size_t>(rule.Day);
        const int last = rule.LastYear == 0 ? 9999 : rule.LastYear;
        if (rule.Enabled) marks_[place] = true;
        if (rule.Enabled && (tableYear_ < rule.FirstYear || tableYear_ > last)) marks_[place] = false;
        names_[place] = rule.Name;
    }
}

bool LiteralCalendar::IsBlocked(std::int32_t day, const DayFlags& flags) {
    if (Weekday(day) == 1 && !flags.Sunday) return true;
    if (Weekday(day) == 7 && !flags.Saturday) return true;
    if (flags.Holiday) return false;
    const CivilDate date = PartsFromDay(day);
    if (date.Year != year_) {
        Resolve(day);
        Build(day);
    } else if (date.Year != tableYear_ || date.Month != tableMonth_) {
        Build(day);
    }
    return marks_[static_cast<std::size_t>(date.Day)];
}

void LiteralCalendar::BuildForCurrent() {
    const std::int32_t current = Settings.CurrentDate.Day;
    if (PartsFromDay(current).Year != year_) Resolve(current);
    Build(current);
}

std::int32_t LiteralCalendar::Diff(std::int32_t first, std::int32_t last) {
    std::int32_t count = 0;
    for (std::int32_t day = first; day <= last; ++day) {
        if (!IsBlocked(day, Settings.Work)) ++count;
    }
    BuildForCurrent();
    return count;
}

std::int32_t LiteralCalendar::Add(std::int32_t day, std::int32_t days) {
    const int direction = days > 0 ? 1 : -1;
    for (std::int32_t count = 0; count != days;) {
        if (!IsValidDay(day + direction)) return day;
        day += direction;
        if (!IsBlocked(day, Settings.Work)) count += direction;
    }
    return day;
}

std::int32_t LiteralCalendar::FirstOfMonth(std::int32_t day) {
    const std::int32_t start = day - PartsFromDay(day).Day + 1;
    std::int32_t found = start;
    int steps = 0;
    while (steps <= 3660 && IsBlocked(found, Settings.Allow)) {
        ++found;
        ++steps;
    }
    BuildForCurrent();
    return steps > 3660 ? start : found;
}

std::string LiteralCalendar::Name(std::int32_t day) {
    if (PartsFromDay(day).Year != year_) Resolve(day);
    Build(day);
    const std::string& name = names_[static_cast<std::size_t>(PartsFromDay(day).Day)];
    static const char* const weekdays[] = {"Sonntag",    "Montag",  "Dienstag", "Mittwoch",
                                           "Donnerstag", "Freitag", "Samstag"};
    return name.empty() ? weekdays[Weekday(day) - 1] : name;
}

/// Within the default limits, and far from them.
void LiteralCalendar::SetCurrent(std::int32_t day) {
    const int direction = day >= Settings.CurrentDate.Day ? 1 : -1;
    std::int32_t found = day;
    int steps = 0;
    while (steps <= 3660 && IsBlocked(found, Settings.Allow)) {
        found += direction;
        ++steps;
    }
    Settings.CurrentDate = {steps > 3660 ? day : found};
}

} // namespace quillgrid::test
