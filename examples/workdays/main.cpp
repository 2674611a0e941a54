// Public holidays and work days on the command line, without any window.
#include "quillgrid/calendar/WorkCalendar.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace quillgrid;

namespace {

constexpr const char* Usage =
    "usage: workdays [--json] COUNTRY DATE +DAYS|-DAYS     the work day so many days on\n"
    "       workdays [--json] diff COUNTRY DATE DATE       work days between, ends included\n"
    "       workdays [--json] list COUNTRY YEAR            the public holidays of a year\n"
    "COUNTRY is de, at, ch or int; a DATE is written 2026-12-01, in the years 1583 to 4199.\n";

struct Country {
    std::string_view Name;
    AutoHolidayConstants Preset;
};
constexpr Country Countries[] = {
    {"de", qgahdGermany}, {"at", qgahdAustria}, {"ch", qgahdSwitzerland}, {"int", qgahdInternational}};

/// A key and its value, which is a text unless it is a number.
struct Field {
    std::string Key;
    std::string Value;
    bool IsNumber = false;
};

std::optional<std::int32_t> NumberFrom(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    std::int32_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
    return number;
}

/// Easter, and with it most holidays, is right in these years only.
bool IsKnownYear(std::int32_t year) {
    return year >= 1583 && year <= 4199;
}

std::optional<DateTime> DateFrom(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-') return std::nullopt;
    const auto year = NumberFrom(text.substr(0, 4));
    const auto month = NumberFrom(text.substr(5, 2));
    const auto day = NumberFrom(text.substr(8));
    if (!year || !month || !day || !IsKnownYear(*year)) return std::nullopt;
    const auto found = DayFromDate(*year, *month, *day);
    if (!found) return std::nullopt;
    return DateTime{*found};
}

std::string TextOf(DateTime date) {
    const CivilDate parts = PartsFromDay(date.Day);
    char text[32];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d", parts.Year, parts.Month, parts.Day);
    return text;
}

std::string JsonOf(const std::vector<Field>& fields) {
    std::string json = "{";
    for (const Field& field : fields) {
        if (json.size() > 1) json += ", ";
        json += '"' + field.Key + "\": " + (field.IsNumber ? field.Value : '"' + field.Value + '"');
    }
    return json + "}";
}

int Add(WorkCalendar& calendar, DateTime start, std::int32_t days, bool json) {
    const DateTime date = calendar.WorkDayAdd(start, days);
    const std::string name = calendar.Dayname(date);
    if (json) {
        std::cout << JsonOf({{"start", TextOf(start)},
                             {"days", std::to_string(days), true},
                             {"date", TextOf(date)},
                             {"name", name}});
    } else {
        std::cout << TextOf(date) << " " << name;
    }
    std::cout << "\n";
    return 0;
}

int Diff(WorkCalendar& calendar, DateTime first, DateTime last, bool json) {
    const std::string days = std::to_string(calendar.WorkDayDiff(first, last));
    std::cout << (json ? JsonOf({{"first", TextOf(first)}, {"last", TextOf(last)}, {"days", days, true}})
                       : days)
              << "\n";
    return 0;
}

int List(WorkCalendar& calendar, std::int32_t year, bool json) {
    calendar.ResolveHolidays({*DayFromDate(year, 1, 1)});
    std::vector<std::pair<DateTime, std::string>> holidays;
    for (const auto& rule : *calendar.Holidays()) {
        if (rule->Enabled()) holidays.emplace_back(rule->DateValue(), rule->Displayname());
    }
    std::stable_sort(holidays.begin(), holidays.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    const char* separator = "[";
    for (const auto& [date, name] : holidays) {
        if (json)
            std::cout << std::exchange(separator, ",\n ") << JsonOf({{"date", TextOf(date)}, {"name", name}});
        else
            std::cout << TextOf(date) << " " << name << "\n";
    }
    if (json) std::cout << (holidays.empty() ? "[]\n" : "]\n");
    return 0;
}

bool Select(WorkCalendar& calendar, std::string_view country) {
    for (const Country& known : Countries) {
        if (known.Name == country) return calendar.SetAutoHolidays(known.Preset);
    }
    return false;
}

int Refuse() {
    std::cerr << Usage;
    return 2;
}

int Run(const std::vector<std::string_view>& words, bool json) {
    const bool isDiff = words.size() == 4 && words[0] == "diff";
    const bool isList = words.size() == 3 && words[0] == "list";
    WorkCalendar calendar;
    if (words.size() < 3 || !Select(calendar, words[isDiff || isList ? 1 : 0])) return Refuse();
    if (isList) {
        const auto year = NumberFrom(words[2]);
        return year && IsKnownYear(*year) ? List(calendar, *year, json) : Refuse();
    }
    const auto first = DateFrom(words[isDiff ? 2 : 1]);
    if (isDiff) {
        const auto last = DateFrom(words[3]);
        return first && last ? Diff(calendar, *first, *last, json) : Refuse();
    }
    const auto days = NumberFrom(words[2]);
    return words.size() == 3 && first && days ? Add(calendar, *first, *days, json) : Refuse();
}

} // namespace

int main(int argc, char* argv[]) {
    std::vector<std::string_view> words(argv + 1, argv + argc);
    const auto json = std::find(words.begin(), words.end(), "--json");
    const bool asJson = json != words.end();
    if (asJson) words.erase(json);
    return Run(words, asJson);
}
