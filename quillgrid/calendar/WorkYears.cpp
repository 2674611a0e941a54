#include "quillgrid/calendar/WorkYears.h"

#include <algorithm>
#include <bit>

namespace quillgrid {

namespace {

constexpr std::uint64_t BitsBelow(std::int32_t place) {
    return (std::uint64_t{1} << place) - 1;
}

} // namespace

std::int32_t WorkYears::Year::RankOf(std::int32_t index) const {
    const auto word = static_cast<std::size_t>(index) / 64;
    return Rank + Before[word] + std::popcount(Work.Words[word] & BitsBelow(index % 64));
}

std::int32_t WorkYears::Year::DayAt(std::int32_t rank) const {
    const std::int32_t inYear = rank - Rank;
    std::size_t word = YearBits::WordCount - 1;
    while (Before[word] > inYear)
        --word;
    return Start + static_cast<std::int32_t>(word) * 64 + PlaceOfBit(Work.Words[word], inYear - Before[word]);
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
    year.Start = NewYear(number);
    const int newYear = Weekday(year.Start);
    const YearBits holidays = marks_.HolidaysOf(number);
    const YearBits sundays = weekend_.Sunday ? YearBits{} : EverySeventhDay(newYear, qgdwSunday);
    const YearBits saturdays = weekend_.Saturday ? YearBits{} : EverySeventhDay(newYear, qgdwSaturday);
    std::uint16_t count = 0;
    for (std::size_t i = 0; i < YearBits::WordCount; ++i) {
        std::uint64_t work = ~(holidays.Words[i] | sundays.Words[i] | saturdays.Words[i]);
        if (i + 1 == YearBits::WordCount) work &= BitsBelow(IsLeapYear(number) ? 46 : 45);
        year.Work.Words[i] = work;
        year.Before[i] = count;
        count = static_cast<std::uint16_t>(count + std::popcount(work));
    }
    year.Count = count;
    year.Known = true;
}

WorkYears::Stretch WorkYears::StretchOf(std::int32_t first, std::int32_t last) {
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
WorkYears::Stretch WorkYears::Learn(std::int32_t first, std::int32_t last) {
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
    stretches_.insert(stretches_.erase(from, to), joined);
    return joined;
}

std::int32_t WorkYears::Count(std::int32_t first, std::int32_t last) {
    const YearDay from = YearDayOf(first);
    const YearDay to = YearDayOf(last);
    StretchOf(from.Year, to.Year);
    const Year& end = At(to.Year);
    const auto isWorkDay = static_cast<std::int32_t>(
        end.Work.Words[static_cast<std::size_t>(to.Index) / 64] >> (to.Index % 64) & 1);
    return end.RankOf(to.Index) + isWorkDay - At(from.Year).RankOf(from.Index);
}

std::int32_t WorkYears::RankBefore(std::int32_t day) {
    const YearDay place = YearDayOf(day);
    return At(place.Year).RankOf(place.Index);
}

std::int32_t WorkYears::RankThrough(std::int32_t day) {
    const YearDay place = YearDayOf(day);
    const Year& year = At(place.Year);
    const std::uint64_t word = year.Work.Words[static_cast<std::size_t>(place.Index) / 64];
    return year.RankOf(place.Index) + static_cast<std::int32_t>(word >> (place.Index % 64) & 1);
}

/// The year of a rank that lies within a stretch. Years hold about as many work days each: the first guess is
/// nearly always right or next to it.
std::int32_t WorkYears::YearOfRank(Stretch known, std::int32_t rank) {
    const std::int32_t total = At(known.Last).End() - At(known.First).Rank;
    const std::int64_t share = std::int64_t{rank - At(known.First).Rank} * (known.Last - known.First + 1);
    auto guess = known.First + static_cast<std::int32_t>(share / total);
    for (int attempt = 0; attempt < 2; ++attempt) {
        const Year& year = At(guess);
        if (rank >= year.Rank && rank < year.End()) return guess;
        guess = rank < year.Rank ? std::max(guess - 1, known.First) : std::min(guess + 1, known.Last);
    }
    while (known.First < known.Last) {
        const std::int32_t middle = known.First + (known.Last - known.First) / 2;
        if (rank < At(middle).End())
            known.Last = middle;
        else
            known.First = middle + 1;
    }
    return known.First;
}

std::optional<std::int32_t> WorkYears::Step(std::int32_t day, std::int64_t n) {
    const std::int32_t start = YearDayOf(day).Year;
    Stretch known = StretchOf(start, start);
    for (;;) {
        // Anew in each turn: a stretch that was joined may count from elsewhere.
        const std::int64_t rank = n > 0 ? RankThrough(day) + n - 1 : RankBefore(day) + n;
        if (rank >= At(known.Last).End()) {
            if (known.Last == LastYear) return std::nullopt;
            known = Learn(known.Last + 1, known.Last + 1);
        } else if (rank < At(known.First).Rank) {
            if (known.First == FirstYear) return std::nullopt;
            known = Learn(known.First - 1, known.First - 1);
        } else {
            const auto target = static_cast<std::int32_t>(rank);
            return At(YearOfRank(known, target)).DayAt(target);
        }
    }
}

} // namespace quillgrid
