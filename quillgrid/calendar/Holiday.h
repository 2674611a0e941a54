#pragma once

#include "quillgrid/base/DateTime.h"
#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/HolidayRule.h"
#include "quillgrid/calendar/RuleLink.h"

#include <cstdint>
#include <string>

namespace quillgrid {

/// A rule that finds its date in any year. `Month`, `Day` and `Year` show the date of the last resolution; a
/// change shows in the calendar once another year or month is examined, or the calendar resolves anew.
class QUILLGRID_EXPORT Holiday {
public:
    explicit Holiday(RuleLinkReference link = std::make_shared<RuleLink>());

    /// The first and the last year in which the rule makes a holiday, 100 to 9999: below that 0 (no limit) is
    /// stored, above it 9999. The rule names its day in other years too.
    std::int16_t FirstYear() const { return firstYear_; }
    void SetFirstYear(std::int32_t year);
    std::int16_t LastYear() const { return lastYear_; }
    void SetLastYear(std::int32_t year);
    /// A rule that is not enabled only names its day.
    bool Enabled() const { return enabled_; }
    void SetEnabled(bool enabled);
    /// A number outside the list counts as qghtDayOfMonth.
    HolidayTypeConstants DayType() const { return dayType_; }
    void SetDayType(HolidayTypeConstants type);
    const std::string& Displayname() const { return displayname_; }
    void SetDisplayname(std::string name);
    /// Changing it does not change the key under which the collection finds the rule.
    const std::string& Key() const { return key_; }
    void SetKey(std::string key) { key_ = std::move(key); }
    /// Days from the reference date; for weekday kinds, which one of the month (1 and less: the first).
    std::int16_t Shift() const { return shift_; }
    void SetShift(std::int16_t shift);
    /// 0 to 12, else error 20099. What is written stays the month from which weekday kinds count, whatever a
    /// resolution shows here.
    std::int16_t Month() const;
    void SetMonth(std::int32_t month);
    /// 0 to 31, else error 20099.
    std::int16_t Day() const;
    void SetDay(std::int32_t day);
    /// The year of the last resolution; 0 before the first.
    std::int16_t Year() const;
    void SetYear(std::int16_t year);
    /// The date of the last resolution; date 0 before the first.
    DateTime DateValue() const;

private:
    friend struct HolidayAccess;

    RuleLinkReference link_;
    std::string displayname_;
    std::string key_;
    HolidayTypeConstants dayType_ = qghtDayOfMonth;
    std::int16_t firstYear_ = 0;
    std::int16_t lastYear_ = 0;
    std::int16_t shift_ = 0;
    std::int16_t inputMonth_ = 0;
    std::int16_t month_ = 0;
    std::int16_t day_ = 0;
    std::int16_t year_ = 0;
    bool enabled_ = true;
};

} // namespace quillgrid
