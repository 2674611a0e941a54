#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/HolidayRule.h"
#include "quillgrid/calendar/YearBits.h"

#include <vector>

namespace quillgrid {

/// What of a list of rules decides which days are holidays. Two lists with equal marks agree on every day.
class QUILLGRID_EXPORT HolidayMarks {
public:
    HolidayMarks() = default;
    HolidayMarks(const std::vector<HolidayRule>& rules, const UserDays& user);

    YearBits HolidaysOf(std::int32_t year) const;
    friend bool operator==(const HolidayMarks&, const HolidayMarks&) = default;

private:
    std::vector<HolidayRule> rules_; // enabled ones, without user dates
};

} // namespace quillgrid
