#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/HolidayMarks.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace quillgrid {

/// Which weekend days are work days like any other.
struct Weekend {
    bool Saturday = false;
    bool Sunday = false;

    std::size_t Index() const { return (Saturday ? 1U : 0U) + (Sunday ? 2U : 0U); }
    static constexpr std::size_t Choices = 4;
    /// Whether a day is kept free by its weekday alone.
    bool Blocks(std::int32_t day) const {
        const int weekday = Weekday(day);
        return (weekday == qgdwSunday && !Sunday) || (weekday == qgdwSaturday && !Saturday);
    }
};

/// Work days counted and found by year: a year is worked out when it is first touched and kept as one bit a
/// day. Stretches of known years carry running counts, so the length of a span does not matter.
class QUILLGRID_EXPORT WorkYears {
public:
    /// `marks` must outlive this.
    WorkYears(const HolidayMarks& marks, Weekend weekend);

    /// Work days from `first` to `last`, both included, `first` not after `last`.
    std::int32_t Count(YearDay first, YearDay last);
    /// The n-th work day after `day`, or before it for a negative n, which is not 0. Year 0 when the calendar
    /// ends earlier: what does not fit a register would cost more here than finding the day.
    YearDay Step(YearDay day, std::int64_t n);

private:
    // Six counts of at most 320, each with a bit to spare for comparing all of them at once.
    static constexpr std::size_t LaneBits = 10;
    static constexpr std::uint64_t LaneMask = (std::uint64_t{1} << LaneBits) - 1;

    struct Year {
        YearBits Work;
        std::uint64_t Before = 0; ///< work days of the year ahead of each word, one after the other
        std::int32_t Rank = 0;    ///< work days ahead of the year, counted from somewhere in its stretch
        std::uint16_t Count = 0;
        bool Known = false;

        /// Work days ahead of a day, or up to and with it.
        std::int32_t RankBefore(std::int32_t index) const {
            return RankOf(index, (std::uint64_t{1} << (index % 64)) - 1);
        }
        std::int32_t RankThrough(std::int32_t index) const {
            return RankOf(index, (std::uint64_t{2} << (index % 64)) - 1);
        }
        std::int32_t End() const { return Rank + Count; }
        std::int32_t IndexOf(std::int32_t rank) const;

    private:
        std::int32_t RankOf(std::int32_t index, std::uint64_t counted) const {
            const auto word = static_cast<std::size_t>(index) / 64;
            return Rank + BeforeWord(word) + CountBits(Work.Words[word] & counted);
        }
        std::int32_t BeforeWord(std::size_t word) const {
            return static_cast<std::int32_t>(Before >> (word * LaneBits) & LaneMask);
        }
    };
    static constexpr std::int32_t PageSize = 32;
    using Page = std::array<Year, PageSize>;
    struct Stretch {
        std::int32_t First = 0;
        std::int32_t Last = 0;
        std::int32_t Rank = 0;            ///< of its first day
        std::int32_t End = 0;             ///< one more than the rank of its last work day
        std::int64_t YearsPerWorkDay = 0; ///< on average, in parts of 2^32

        bool HasRank(std::int64_t rank) const { return rank >= Rank && rank < End; }
    };

    Year& At(std::int32_t year) {
        const auto place = static_cast<std::size_t>(year - FirstYear);
        return (*pages_[place / PageSize])[place % PageSize];
    }
    Year& Make(std::int32_t year);
    void WorkOut(Year& year, std::int32_t number) const;
    const Stretch& StretchOf(std::int32_t first, std::int32_t last);
    const Stretch& Learn(std::int32_t first, std::int32_t last);
    std::int64_t Target(YearDay day, std::int64_t n);
    bool Extend(YearDay day, std::int64_t n);
    YearDay Find(const Stretch& known, std::int32_t rank);
    std::int32_t SearchYear(const Stretch& known, std::int32_t rank);

    const HolidayMarks& marks_;
    Weekend weekend_;
    std::vector<std::unique_ptr<Page>> pages_;
    std::vector<Stretch> stretches_; // in order, never touching each other
    std::size_t recent_ = 0;
};

} // namespace quillgrid
