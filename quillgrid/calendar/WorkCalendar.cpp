#include "quillgrid/calendar/WorkCalendar.h"

#include "quillgrid/calendar/EnableFlags.h"
#include "quillgrid/cells/LanguageTexts.h"

namespace quillgrid {

WorkCalendar::WorkCalendar(DateTime currentDate, CalendarOwner* owner) : owner_(owner) {
    settings_.CurrentDate = {NearestValidDay(currentDate.Day)};
    LoadAutoHolidays();
    ResolveHolidays(settings_.CurrentDate);
}

std::int32_t WorkCalendar::Limited(std::int32_t day) const {
    if (day < settings_.MinDate.Day) day = settings_.MinDate.Day;
    if (day > settings_.MaxDate.Day) day = settings_.MaxDate.Day;
    return NearestValidDay(day);
}

MonthTable& WorkCalendar::ResolveHolidays(DateTime date) {
    book_.Resolve(YearDayOf(NearestValidDay(date.Day)));
    return book_.Table();
}

/// Other questions have left the rules at another year or month.
MonthTable& WorkCalendar::ShowMonth(DateTime date) {
    book_.Show(YearDayOf(NearestValidDay(date.Day)));
    return book_.Table();
}

MonthTable& WorkCalendar::VisitMonth(DateTime date) {
    book_.Visit(YearDayOf(NearestValidDay(date.Day)));
    return book_.Table();
}

bool WorkCalendar::IsBlocked(std::int32_t day, const DayFlags& flags) {
    if (Weekend{flags.Saturday, flags.Sunday}.Blocks(day)) return true;
    return !flags.Holiday && book_.IsHoliday(YearDayOf(day));
}

bool WorkCalendar::IsWorkDay(std::optional<DateTime> date) {
    return !IsBlocked(date ? NearestValidDay(date->Day) : CurrentDay(), settings_.Work);
}

bool WorkCalendar::IsAllowed(DateTime date) {
    return !IsBlocked(NearestValidDay(date.Day), settings_.Allow);
}

std::int32_t WorkCalendar::WorkDayDiff(DateTime date1, DateTime date2) {
    const std::int32_t first = NearestValidDay(date1.Day);
    const std::int32_t last = NearestValidDay(date2.Day);
    const std::int32_t count = first <= last ? CountWorkDays(first, last) : 0;
    ShowCurrentMonth();
    return count;
}

std::int32_t WorkCalendar::CountWorkDays(std::int32_t first, std::int32_t last) {
    const YearDay end = YearDayOf(last);
    if (settings_.Work.Holiday) return noHolidays_.Years(WorkWeekend()).Count(YearDayOf(first), end);
    std::int32_t count = 0;
    // Day by day only until the next year, at the latest, has brought the rules up to date.
    for (; first <= last && !book_.IsUniform(); ++first)
        count += IsBlocked(first, settings_.Work) ? 0 : 1;
    return first <= last ? count + book_.Years(WorkWeekend()).Count(YearDayOf(first), end) : count;
}

DateTime WorkCalendar::WorkDayAdd(DateTime date1, std::int32_t days) {
    const std::int32_t day = NearestValidDay(date1.Day);
    return {days == 0 ? day : StepWorkDays(day, days), date1.Second};
}

std::int32_t WorkCalendar::StepWorkDays(std::int32_t day, std::int64_t n) {
    const std::int32_t direction = n > 0 ? 1 : -1;
    const std::int32_t limit = n > 0 ? LastDay : FirstDay;
    if (settings_.Work.Holiday) {
        const YearDay found = noHolidays_.Years(WorkWeekend()).Step(YearDayOf(day), n);
        return found.Year != 0 ? DayOf(found) : limit;
    }
    while (!book_.IsUniform()) {
        if (day == limit) return limit;
        day += direction;
        if (!IsBlocked(day, settings_.Work)) n -= direction;
        if (n == 0) return day;
    }
    return StepKnownDays(day, n);
}

/// Leaves the rules at the last day that going day by day would have asked about.
std::int32_t WorkCalendar::StepKnownDays(std::int32_t day, std::int64_t n) {
    const YearDay found = book_.Years(WorkWeekend()).Step(YearDayOf(day), n);
    if (found.Year != 0) {
        book_.Visit(found);
        return DayOf(found);
    }
    const std::int32_t direction = n > 0 ? 1 : -1;
    const std::int32_t limit = n > 0 ? LastDay : FirstDay;
    std::int32_t asked = limit;
    while (asked != day && WorkWeekend().Blocks(asked))
        asked -= direction;
    if (asked != day) book_.Visit(YearDayOf(asked));
    return limit;
}

DateSearch WorkCalendar::SearchAllowed() {
    return DateSearch([this](std::int32_t day) { return IsBlocked(day, settings_.Allow); });
}

DateTime WorkCalendar::FirstOfMonth(DateTime date) {
    const std::int32_t day = date == DateTime{} ? CurrentDay() : NearestValidDay(date.Day);
    const std::int32_t start = day - DateOf(day).Day + 1;
    const auto found = SearchAllowed().ByDays(start, 1);
    ShowCurrentMonth();
    return {found ? *found : Limited(start)};
}

DateTime WorkCalendar::LastOfMonth(DateTime date) {
    const std::int32_t day = date == DateTime{} ? CurrentDay() : NearestValidDay(date.Day);
    const CivilDate parts = DateOf(day);
    const std::int32_t start = day - parts.Day + DaysInMonth(parts.Year, parts.Month);
    const auto found = SearchAllowed().ByDays(start, -1);
    ShowCurrentMonth();
    return {found ? *found : Limited(start)};
}

std::string WorkCalendar::Dayname(DateTime date) {
    const std::int32_t day = date == DateTime{} ? CurrentDay() : NearestValidDay(date.Day);
    const YearDay place = YearDayOf(day);
    book_.Show(place);
    const std::string& name = book_.Table().Name(DateOf(place).Day);
    if (!name.empty()) return name;
    const Locale& locale = owner_ ? owner_->UserLocale() : BuiltInLocale("de-DE");
    return locale.DayNames[static_cast<std::size_t>(Weekday(day) - 1)];
}

DateTime WorkCalendar::NearestAllowedDate(DateTime date, DateUnit unit) {
    const std::int32_t start = Limited(NearestValidDay(date.Day));
    const std::int32_t direction = start >= CurrentDay() ? 1 : -1;
    const bool endless = direction > 0 && settings_.MaxDate.Day <= 0;
    const DateSearch::Range range{NearestValidDay(settings_.MinDate.Day),
                                  endless ? LastDay : NearestValidDay(settings_.MaxDate.Day)};
    return {SearchAllowed().Within(range, start, direction, unit).value_or(start)};
}

DateTime WorkCalendar::Easter() const {
    return {EasterDay(book_.ResolvedYear())};
}

bool WorkCalendar::SetCurrentDate(DateTime date) {
    const DateTime before = settings_.CurrentDate;
    settings_.CurrentDate = NearestAllowedDate(date);
    if (before.Day == date.Day || !owner_) return true;
    const std::weak_ptr<bool> life = life_;
    owner_->CurrentDateAssigned(before);
    return !life.expired();
}

bool WorkCalendar::AssignAndMove(bool& field, bool value, std::string_view key) {
    const std::weak_ptr<bool> life = life_;
    Assign(field, value, key);
    return !life.expired() && SetCurrentDate(NearestAllowedDate(settings_.CurrentDate));
}

bool WorkCalendar::SetAllowSaturday(bool allow) {
    return AssignAndMove(settings_.Allow.Saturday, allow, "AllowSaturday");
}

bool WorkCalendar::SetAllowSunday(bool allow) {
    return AssignAndMove(settings_.Allow.Sunday, allow, "AllowSunday");
}

bool WorkCalendar::Synchronise(const CalendarSync& sync) {
    const std::weak_ptr<bool> life = life_;
    if (sync.Allow) {
        const DayFlags allow = *sync.Allow; // whoever hears of the first may change the others
        SetAllowHoliday(allow.Holiday);
        if (life.expired() || !SetAllowSaturday(allow.Saturday) || !SetAllowSunday(allow.Sunday))
            return false;
    }
    SetWorkHoliday(sync.Work.Holiday);
    if (!life.expired()) SetWorkSaturday(sync.Work.Saturday);
    if (!life.expired()) SetWorkSunday(sync.Work.Sunday);
    return !life.expired() && SetAutoHolidays(sync.AutoHolidays);
}

void WorkCalendar::SetUserDate(std::size_t which, DateTime date, const char* name) {
    if (owner_ && !owner_->UserMode())
        throw RaiseControlError(382, std::string("QGCalendar:") + name + " Property Let");
    userDates_[which] = date;
    book_.SetUserDay(which, NearestValidDay(date.Day));
    Mark(name);
}

void WorkCalendar::RestoreAutoHolidays(AutoHolidayConstants preset) {
    settings_.AutoHolidays = preset;
    LoadAutoHolidays();
    ResolveHolidays(settings_.CurrentDate);
}

bool WorkCalendar::SetAutoHolidays(AutoHolidayConstants preset) {
    const std::weak_ptr<bool> life = life_;
    settings_.AutoHolidays = preset;
    Mark("AutoHolidays");
    if (life.expired()) return false;
    // The date is looked for under the rules that were: they go only afterwards.
    if (!SetCurrentDate(NearestAllowedDate(settings_.CurrentDate))) return false;
    RestoreAutoHolidays(settings_.AutoHolidays); // whoever heard may have chosen another one
    if (owner_) owner_->HolidaysReloaded();
    return !life.expired();
}

std::string& WorkCalendar::Config() {
    switch (settings_.AutoHolidays) {
    case qgahdGermany: return settings_.ConfigGermany;
    case qgahdAustria: return settings_.ConfigAustria;
    case qgahdSwitzerland: return settings_.ConfigSwitzerland;
    default: return settings_.ConfigEurope;
    }
}

std::string_view WorkCalendar::ConfigKey() const {
    switch (settings_.AutoHolidays) {
    case qgahdGermany: return "ConfigGermany";
    case qgahdAustria: return "ConfigAustria";
    case qgahdSwitzerland: return "ConfigSwitzerland";
    default: return "ConfigEurope";
    }
}

/// Whether loading would change nothing that anyone could tell: same rules, unchanged, and held by no one.
bool WorkCalendar::IsLoaded(const HolidayPreset* preset, std::string_view config) const {
    const auto* rules = book_.Rules().get();
    return loaded_.Rules == rules && loaded_.Preset == preset && loaded_.Config == config &&
           loaded_.Revision == HolidaysAccess::Link(*rules).Revision && !HolidaysAccess::HandedOut(*rules);
}

void WorkCalendar::LoadAutoHolidays() {
    const HolidayPreset* const preset = FindPreset(settings_.AutoHolidays);
    const std::string& config = Config();
    if (IsLoaded(preset, config)) return;
    auto& rules = *book_.Rules();
    rules.Clear();
    if (preset) {
        const EnableFlags flags(config);
        std::size_t position = 0;
        for (const PresetRule& rule : *preset)
            rules.Add({std::string(rule.Key),
                       rule.DayType,
                       rule.Month,
                       rule.Day,
                       rule.Shift,
                       {},
                       flags.IsOn(++position)});
    }
    HolidaysAccess::TakeBack(rules);
    loaded_ = {preset, config, &rules, HolidaysAccess::Link(rules).Revision};
}

void WorkCalendar::Save() {
    const HolidayPreset* const preset = FindPreset(settings_.AutoHolidays);
    if (!preset) return;
    auto characters = EnableCharacters(Config(), static_cast<std::size_t>(preset->Size));
    const auto& rules = HolidaysAccess::List(*book_.Rules());
    auto character = characters.begin();
    for (const PresetRule& rule : *preset) {
        if (const auto found = rules.Find(rule.Key)) *character = found->Enabled() ? "1" : "0";
        ++character;
    }
    std::string saved;
    for (const std::string_view text : characters)
        saved += text;
    Config() = std::move(saved);
    const std::weak_ptr<bool> life = life_;
    Mark(ConfigKey());
    if (!life.expired()) ShowCurrentMonth();
}

} // namespace quillgrid
