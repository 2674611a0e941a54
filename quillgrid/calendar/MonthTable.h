#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/RuleSnapshot.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>

namespace quillgrid {

/// The holidays of one month: which days are marked and what every day is called. Built from a snapshot, it
/// is filled only when someone looks.
class QUILLGRID_EXPORT MonthTable {
public:
    std::int32_t Year() const { return place_.Year; }
    std::int32_t Month() const { return month_ != 0 ? month_ : DateOf(place_).Month; }
    bool IsOf(std::int32_t year, std::int32_t month) const { return Year() == year && Month() == month; }

    /// Whether a day (1 to 31) is a holiday.
    bool IsMarked(std::int32_t day);
    /// The name of a day (1 to 31), empty when it has none.
    const std::string& Name(std::int32_t day);

    /// The month of a day.
    void BuildFrom(const std::shared_ptr<const RuleSnapshot>& source, YearDay day) {
        if (source_ != source) source_ = source;
        place_ = day;
        month_ = 0;
        filled_ = false;
    }
    /// From the dates that the rules show now.
    void BuildFrom(const Holidays& rules, YearDay day);

private:
    void Begin();
    void Apply(const HolidayRule& rule, MonthDay date, const std::string& name);
    void Fill();

    std::shared_ptr<const RuleSnapshot> source_;
    std::array<std::string, 32> names_;
    std::uint32_t marks_ = 0; // bit n for day n
    std::uint32_t named_ = 0; // days whose name may not be empty
    YearDay place_{};
    std::int32_t month_ = 0; // of the place, 0 until someone asks
    bool filled_ = true;
};

} // namespace quillgrid
