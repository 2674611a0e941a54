#include "quillgrid/calendar/WorkYears.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace quillgrid::test {

namespace {

/// All work days of the calendar, one after the other.
std::vector<std::int32_t> AllWorkDays(const HolidayMarks& marks, Weekend weekend) {
    std::vector<std::int32_t> days;
    for (std::int32_t year = FirstYear; year <= LastYear; ++year) {
        const YearBits holidays = marks.HolidaysOf(year);
        for (std::int32_t day = NewYear(year); day < NewYear(year + 1); ++day) {
            if (!weekend.Blocks(day) && holidays.Slice(day - NewYear(year), 1) == 0) days.push_back(day);
        }
    }
    return days;
}

std::vector<HolidayRule> SomeRules() {
    std::vector<HolidayRule> rules = {{.Month = 12, .Day = 25},
                                      {.Month = 2, .Day = 29},
                                      {.Type = qghtDaysFromEaster, .Shift = 1},
                                      {.Type = qghtThursdayOfMonth, .Month = 11, .Shift = 4}};
    // A stretch of years in which nobody works at all.
    for (std::int16_t month = 1; month <= 12; ++month) {
        for (std::int16_t day = 1; day <= 31; ++day)
            rules.push_back({.Month = month, .Day = day, .FirstYear = 2100, .LastYear = 2160});
    }
    return rules;
}

} // namespace

TEST(YearBits, FindsBits) {
    std::mt19937_64 random(1);
    for (int i = 0; i < 2000; ++i) {
        const std::uint64_t word =
            i % 3 == 0 ? random() & random() & random() : random() | (i % 5 ? 0 : ~0ULL);
        int before = 0;
        for (int place = 0; place < 64; ++place) {
            if ((word >> place & 1) == 0) continue;
            ASSERT_EQ(PlaceOfBit(word, before++), place) << word;
        }
    }
}

TEST(WorkYears, AgreesWithAListOfAllDaysInWhateverOrderYearsAreMet) {
    const HolidayMarks marks(SomeRules(), {});
    for (const Weekend weekend : {Weekend{}, Weekend{true, false}, Weekend{true, true}}) {
        const auto days = AllWorkDays(marks, weekend);
        std::mt19937 random(5);
        const auto any = [&](int low, int high) {
            return std::uniform_int_distribution<int>(low, high)(random);
        };
        WorkYears years(marks, weekend);
        for (int i = 0; i < 4000; ++i) {
            const std::int32_t first = any(FirstDay, LastDay);
            const std::int32_t last = any(first, std::min(LastDay, first + (i % 50 == 0 ? 900'000 : 3000)));
            const auto from = std::lower_bound(days.begin(), days.end(), first);
            const auto to = std::upper_bound(days.begin(), days.end(), last);
            ASSERT_EQ(years.Count(YearDayOf(first), YearDayOf(last)), to - from) << first << " " << last;
            const int n = any(1, i % 50 == 0 ? 300'000 : 2000);
            const auto step = [&](std::int64_t count) -> std::optional<std::int32_t> {
                const auto found = years.Step(YearDayOf(first), count);
                if (found.Year == 0) return std::nullopt;
                return DayOf(found);
            };
            const auto after = std::upper_bound(days.begin(), days.end(), first);
            ASSERT_EQ(step(n), days.end() - after >= n ? std::optional(after[n - 1]) : std::nullopt);
            ASSERT_EQ(step(-n), from - days.begin() >= n ? std::optional(from[-n]) : std::nullopt);
        }
    }
}

} // namespace quillgrid::test
