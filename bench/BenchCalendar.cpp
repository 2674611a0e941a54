// Work days counted and added, beside what a developer would use instead: a list of all work days searched by
// halves, and, where it is installed, QuantLib's calendar. Each stands under the same rules.
#include "bench/CountedRun.h"
#include "quillgrid/calendar/WorkCalendar.h"

#ifdef QUILLGRID_BENCH_QUANTLIB
#include <ql/time/calendars/germany.hpp>
#endif

#include <algorithm>
#include <chrono>
#include <random>
#include <vector>

namespace quillgrid::bench {

namespace {

constexpr std::int32_t Start = *DayFromDate(2020, 1, 1);
constexpr std::int32_t SpanCount = 1024;

struct Span {
    std::int32_t First;
    std::int32_t Last;
    std::int32_t Days; ///< work days of about this length
};

/// Spans of about so many years, each starting on another day.
std::vector<Span> SpansOf(std::int32_t years) {
    std::mt19937 random(1);
    std::uniform_int_distribution<std::int32_t> shift(0, 365);
    std::vector<Span> spans;
    for (std::int32_t i = 0; i < SpanCount; ++i) {
        const std::int32_t first = Start + shift(random);
        const std::int32_t length = years * 365 + shift(random);
        spans.push_back({first, first + length, length * 2 / 3});
    }
    return spans;
}

template <typename Work>
void OverSpans(benchmark::State& state, Work work) {
    const auto spans = SpansOf(static_cast<std::int32_t>(state.range(0)));
    std::size_t next = 0;
    CountedRun(state, [&] { return work(spans[next++ % spans.size()]); });
}

void WorkDays_Diff(benchmark::State& state) {
    WorkCalendar calendar({Start});
    calendar.WorkDayDiff({Start}, {Start + 366 * 130});
    OverSpans(state, [&](const Span& span) { return calendar.WorkDayDiff({span.First}, {span.Last}); });
}

void WorkDays_Add(benchmark::State& state) {
    WorkCalendar calendar({Start});
    calendar.WorkDayDiff({Start}, {Start + 366 * 130});
    OverSpans(state, [&](const Span& span) { return calendar.WorkDayAdd({span.First}, span.Days); });
}

/// As a form asks: flags, preset and current date are handed over before each question.
void WorkDays_DiffOfForm(benchmark::State& state) {
    WorkCalendar calendar({Start});
    const DayFlags allow{true, true, true};
    OverSpans(state, [&](const Span& span) {
        calendar.Synchronise({.Allow = &allow});
        calendar.SetCurrentDate({span.First});
        return calendar.WorkDayDiff({span.First}, {span.Last});
    });
}

/// A century of years that are met for the first time; the time is that of one year.
void WorkDays_FirstTouch(benchmark::State& state) {
    constexpr std::int32_t years = 100;
    for (auto _ : state) {
        WorkCalendar calendar({Start});
        calendar.SetAutoHolidays(AutoHolidayConstants(static_cast<std::int32_t>(state.range(0))));
        const auto before = std::chrono::steady_clock::now();
        benchmark::DoNotOptimize(calendar.WorkDayDiff({Start}, {*DayFromDate(2020 + years - 1, 12, 31)}));
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - before;
        state.SetIterationTime(taken.count() / years);
    }
}

/// Nothing known, every year of the calendar in one question.
void WorkDays_WholeCalendar(benchmark::State& state) {
    for (auto _ : state) {
        WorkCalendar calendar({Start});
        benchmark::DoNotOptimize(calendar.WorkDayDiff({FirstDay}, {LastDay}));
    }
}

std::vector<std::int32_t> ListOfWorkDays() {
    WorkCalendar calendar({Start});
    std::vector<std::int32_t> days;
    for (std::int32_t day = Start; day < Start + 366 * 130; ++day) {
        if (calendar.IsWorkDay(DateTime{day})) days.push_back(day);
    }
    return days;
}

void WorkDays_DiffInList(benchmark::State& state) {
    const auto days = ListOfWorkDays();
    OverSpans(state, [&](const Span& span) {
        return std::upper_bound(days.begin(), days.end(), span.Last) -
               std::lower_bound(days.begin(), days.end(), span.First);
    });
}

void WorkDays_AddInList(benchmark::State& state) {
    const auto days = ListOfWorkDays();
    OverSpans(state, [&](const Span& span) {
        return std::upper_bound(days.begin(), days.end(), span.First)[span.Days - 1];
    });
}

#ifdef QUILLGRID_BENCH_QUANTLIB
/// The days that QuantLib takes for German holidays, and no others: both must give the same.
void Enable(WorkCalendar& calendar) {
    calendar.Settings().ConfigGermany = "10000101110110001000001110";
    calendar.SetAutoHolidays(qgahdGermany);
}

void WorkDays_DiffQuantLib(benchmark::State& state) {
    const QuantLib::Germany calendar(QuantLib::Germany::Settlement);
    WorkCalendar own({Start});
    Enable(own);
    OverSpans(state, [&](const Span& span) {
        const auto days =
            calendar.businessDaysBetween(QuantLib::Date(span.First), QuantLib::Date(span.Last), true, true);
        if (days != own.WorkDayDiff({span.First}, {span.Last})) state.SkipWithError("another count");
        return days;
    });
}

void WorkDays_AddQuantLib(benchmark::State& state) {
    const QuantLib::Germany calendar(QuantLib::Germany::Settlement);
    WorkCalendar own({Start});
    Enable(own);
    OverSpans(state, [&](const Span& span) {
        const auto day = calendar.advance(QuantLib::Date(span.First), span.Days, QuantLib::Days);
        if (day.serialNumber() != own.WorkDayAdd({span.First}, span.Days).Day)
            state.SkipWithError("another day");
        return day;
    });
}

BENCHMARK(WorkDays_DiffQuantLib)->Arg(10);
BENCHMARK(WorkDays_AddQuantLib)->Arg(10);
#endif

BENCHMARK(WorkDays_Diff)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(WorkDays_Add)->Arg(1)->Arg(10)->Arg(100);
BENCHMARK(WorkDays_DiffOfForm)->Arg(10);
BENCHMARK(WorkDays_FirstTouch)->Arg(qgahdGermany)->Arg(qgahdSwitzerland)->UseManualTime();
BENCHMARK(WorkDays_WholeCalendar);
BENCHMARK(WorkDays_DiffInList)->Arg(10);
BENCHMARK(WorkDays_AddInList)->Arg(10);

} // namespace

} // namespace quillgrid::bench
