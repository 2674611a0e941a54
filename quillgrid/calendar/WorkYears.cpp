#include "quillgrid/calendar/WorkYears.h"

#include <algorithm>

namespace quillgrid {

std::int32_t WorkYears::Year::IndexOf(std::int32_t rank) const {
    constexpr std::uint64_t ones = 0x0004'0100'4010'0401; // lowest bits of the six counts
    constexpr std::uint64_t spare = ones << (LaneBits - 1);
    const std::int32_t inYear = rank - Rank;
    // A spare bit survives where the count is not above `inYear`; the first always does.
    const std::uint64_t notAbove = ((static_cast<std::uint64_t>(inYear) * ones | spare) - Before) & spare;
    const std::uint64_t words = ((notAbove >> (LaneBits - 1)) * ones >> (5 * LaneBits)) & LaneMask;
    const std::size_t word = static_cast<std::size_t>(words) - 1;
    return static_cast<std::int32_t>(word) * 64 + PlaceOfBit(Work.Words[word], inYear - BeforeWord(word));
}

WorkYears::WorkYears(const HolidayMarks& marks, Weekend weekend)
    : marks_(marks), weekend_(weekend), pages_((LastYear - FirstYear) / PageSize + 1) {}

WorkYears::Year& WorkYears::Make(std::int32_t year) {
    auto& page = pages_[static_cast<std::size_t>((year - FirstYear) / PageSize)];
    if (!page) page = std::make_unique<Page>();
    Year& made = At(year);
    if (!made.Known) WorkOut(made, year);
    return made;
}

void WorkYears::WorkOut(Year& year, std::int32_t number) const {
    const int newYear = Weekday(NewYear(number));
    const YearBits holidays = marks_.HolidaysOf(number);
    const YearBits sundays = weekend_.Sunday ? YearBits{} : EverySeventhDay(newYear, qgdwSunday);
    const YearBits saturdays = weekend_.Saturday ? YearBits{} : EverySeventhDay(newYear, qgdwSaturday);
    std::int32_t count = 0;
    year.Before = 0;
    for (std::size_t i = 0; i < YearBits::WordCount; ++i) {
        std::uint64_t work = ~(holidays.Words[i] | sundays.Words[i] | saturdays.Words[i]);
        if (i + 1 == YearBits::WordCount) work &= (std::uint64_t{1} << (IsLeapYear(number) ? 46 : 45)) - 1;
        year.Work.Words[i] = work;
        year.Before |= static_cast<std::uint64_t>(count) << (i * LaneBits);
        count += CountBits(work);
    }
    year.Count = static_cast<std::uint16_t>(count);
    year.Known = true;
}

const WorkYears::Stretch& WorkYears::StretchOf(std::int32_t first, std::int32_t last) {
    const auto covers = [&](const Stretch& known) { return known.First <= first && last <= known.Last; };
    if (recent_ < stretches_.size() && covers(stretches_[recent_])) return stretches_[recent_];
    const auto found = std::partition_point(stretches_.begin(), stretches_.end(),
                                            [&](const Stretch& known) { return known.Last < first; });
    if (found == stretches_.end() || !covers(*found)) return Learn(first, last);
    recent_ = static_cast<std::size_t>(found - stretches_.begin());
    return *found;
}

/// Makes one stretch of the years asked for and of those that they touch. The longest of these keeps its
/// counts, so however queries come, no year is counted anew often.
const WorkYears::Stretch& WorkYears::Learn(std::int32_t first, std::int32_t last) {
    const auto from = std::partition_point(stretches_.begin(), stretches_.end(),
                                           [&](const Stretch& known) { return known.Last + 1 < first; });
    const auto to = std::partition_point(from, stretches_.end(),
                                         [&](const Stretch& known) { return known.First <= last + 1; });
    Stretch joined{first, last};
    Stretch kept{first, first - 1};
    for (auto touched = from; touched != to; ++touched) {
        joined = {std::min(joined.First, touched->First), std::max(joined.Last, touched->Last)};
        if (touched->Last - touched->First > kept.Last - kept.First) kept = *touched;
    }
    if (kept.Last < kept.First) {
        Make(first).Rank = 0;
        kept.Last = first;
    }
    for (std::int32_t year = kept.First - 1; year >= joined.First; --year) {
        Year& made = Make(year);
        made.Rank = At(year + 1).Rank - made.Count;
    }
    for (std::int32_t year = kept.Last + 1; year <= joined.Last; ++year)
        Make(year).Rank = At(year - 1).End();
    recent_ = static_cast<std::size_t>(from - stretches_.begin());
    joined.Rank = At(joined.First).Rank;
    joined.End = At(joined.Last).End();
    joined.YearsPerWorkDay =
        (std::int64_t{joined.Last - joined.First + 1} << 32) / std::max(joined.End - joined.Rank, 1);
    return *stretches_.insert(stretches_.erase(from, to), joined);
}

std::int32_t WorkYears::Count(YearDay first, YearDay last) {
    StretchOf(first.Year, last.Year);
    return At(last.Year).RankThrough(last.Index) - At(first.Year).RankBefore(first.Index);
}

/// The rank of the work day that lies so many after or before a day of a known year.
std::int64_t WorkYears::Target(YearDay day, std::int64_t n) {
    const Year& start = At(day.Year);
    return n > 0 ? start.RankThrough(day.Index) + n - 1 : start.RankBefore(day.Index) + n;
}

YearDay WorkYears::Step(YearDay day, std::int64_t n) {
    const Stretch& known = StretchOf(day.Year, day.Year);
    const std::int64_t rank = Target(day, n);
    if (known.HasRank(rank)) return Find(known, static_cast<std::int32_t>(rank));
    if (!Extend(day, n)) return {0, 0};
    return Find(StretchOf(day.Year, day.Year), static_cast<std::int32_t>(Target(day, n)));
}

/// Learns year after year until the day looked for is among them. False when the calendar ends first.
bool WorkYears::Extend(YearDay day, std::int64_t n) {
    for (;;) {
        const Stretch known = StretchOf(day.Year, day.Year);
        const std::int64_t rank = Target(day, n); // a stretch that was joined may count from elsewhere
        if (known.HasRank(rank)) return true;
        const std::int32_t year = rank >= known.End ? known.Last + 1 : known.First - 1;
        if (year < FirstYear || year > LastYear) return false;
        Learn(year, year);
    }
}

/// Years hold about as many work days each: the first guess is nearly always right.
YearDay WorkYears::Find(const Stretch& known, std::int32_t rank) {
    const std::int64_t share = (rank - known.Rank) * known.YearsPerWorkDay >> 32;
    std::int32_t year = known.First + static_cast<std::int32_t>(share);
    if (rank < At(year).Rank || rank >= At(year).End()) year = SearchYear(known, rank);
    return {year, At(year).IndexOf(rank)};
}

std::int32_t WorkYears::SearchYear(const Stretch& known, std::int32_t rank) {
    std::int32_t low = known.First;
    std::int32_t high = known.Last;
    while (low < high) {
        const std::int32_t middle = low + (high - low) / 2;
        if (rank < At(middle).End())
            high = middle;
        else
            low = middle + 1;
    }
    return low;
}

} // namespace quillgrid
