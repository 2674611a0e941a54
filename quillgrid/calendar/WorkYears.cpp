#include "quillgrid/calendar/WorkYears.h"

#include <algorithm>

namespace quillgrid {

std::int32_t WorkYears::Year::IndexOf(std::int32_t rank) const {
    const std::int32_t inYear = rank - Rank;
    std::size_t word = 0;
    for (std::size_t later = 1; later < YearBits::WordCount; ++later)
        word += Before[later] <= inYear ? 1U : 0U;
    return static_cast<std::int32_t>(word) * 64 + PlaceOfBit(Work.Words[word], inYear - Before[word]);
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
    std::uint16_t count = 0;
    for (std::size_t i = 0; i < YearBits::WordCount; ++i) {
        std::uint64_t work = ~(holidays.Words[i] | sundays.Words[i] | saturdays.Words[i]);
        if (i + 1 == YearBits::WordCount) work &= (std::uint64_t{1} << (IsLeapYear(number) ? 46 : 45)) - 1;
        year.Work.Words[i] = work;
        year.Before[i] = count;
        count = static_cast<std::uint16_t>(count + CountBits(work));
    }
    year.Count = count;
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
    const std::int32_t days = At(joined.Last).End() - At(joined.First).Rank;
    joined.YearsPerWorkDay = (joined.Last - joined.First + 1.0) / std::max(days, 1);
    return *stretches_.insert(stretches_.erase(from, to), joined);
}

std::int32_t WorkYears::Count(YearDay first, YearDay last) {
    StretchOf(first.Year, last.Year);
    return At(last.Year).RankThrough(last.Index) - At(first.Year).RankBefore(first.Index);
}

/// The year of a rank that lies within a stretch. Years hold about as many work days each: the first guess is
/// nearly always right or next to it.
std::int32_t WorkYears::YearOfRank(Stretch known, std::int32_t rank) {
    const double share = (rank - At(known.First).Rank) * known.YearsPerWorkDay;
    std::int32_t guess = std::min(known.First + static_cast<std::int32_t>(share), known.Last);
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

std::optional<YearDay> WorkYears::Step(YearDay day, std::int64_t n) {
    Stretch known = StretchOf(day.Year, day.Year);
    for (;;) {
        // Anew in each turn: a stretch that was joined may count from elsewhere.
        const Year& start = At(day.Year);
        const std::int64_t rank =
            n > 0 ? start.RankThrough(day.Index) + n - 1 : start.RankBefore(day.Index) + n;
        if (rank >= At(known.Last).End()) {
            if (known.Last == LastYear) return std::nullopt;
            known = Learn(known.Last + 1, known.Last + 1);
        } else if (rank < At(known.First).Rank) {
            if (known.First == FirstYear) return std::nullopt;
            known = Learn(known.First - 1, known.First - 1);
        } else {
            const auto target = static_cast<std::int32_t>(rank);
            const std::int32_t year = YearOfRank(known, target);
            return YearDay{year, At(year).IndexOf(target)};
        }
    }
}

} // namespace quillgrid
