#include "quillgrid/calendar/DateSearch.h"

#include "quillgrid/base/DateTime.h"

namespace quillgrid {

namespace {

constexpr std::int32_t MostDaySteps = 3'660;
constexpr std::int32_t MostWeekSteps = 53;
constexpr DateSearch::Range Calendar{FirstDay, LastDay};

} // namespace

DateSearch::Outcome DateSearch::Run(Range range, std::int32_t day, std::int32_t step,
                                    std::int32_t mostSteps) const {
    for (std::int32_t taken = 0; taken <= mostSteps; ++taken, day += step) {
        if (day < range.First || day > range.Last) return {End::OutOfRange, day};
        if (!isBlocked_(day)) return {End::Found, day};
    }
    return {End::OutOfSteps, day};
}

std::optional<std::int32_t> DateSearch::ByDays(std::int32_t day, std::int32_t direction) const {
    const Outcome outcome = Run(Calendar, day, direction, MostDaySteps);
    if (outcome.How != End::Found) return std::nullopt;
    return outcome.Day;
}

std::optional<std::int32_t> DateSearch::Within(Range range, std::int32_t day, std::int32_t direction,
                                               DateUnit unit) const {
    // What lies behind the start does not end the search.
    const Range ahead = direction > 0 ? Range{FirstDay, range.Last} : Range{range.First, LastDay};
    Outcome outcome{End::OutOfSteps, day};
    if (unit == DateUnit::Week) outcome = Run(ahead, day, direction * 7, MostWeekSteps);
    if (outcome.How == End::OutOfSteps) outcome = Run(ahead, day, direction, MostDaySteps);
    if (outcome.How == End::Found) return outcome.Day;
    if (outcome.How == End::OutOfSteps) return std::nullopt;
    return ByDays(direction > 0 ? range.Last : range.First, -direction);
}

} // namespace quillgrid
