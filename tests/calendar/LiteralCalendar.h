// The calendar as it is defined: one day after the other, every rule resolved and every month condensed on
// the spot, nothing remembered, nothing put off. Slow, and short enough to be believed.
#pragma once

#include "quillgrid/calendar/CalendarSettings.h"
#include "quillgrid/calendar/HolidayRule.h"

#include <array>
#include <string>
#include <vector>

namespace quillgrid::test {

struct LiteralRule {
    HolidayTypeConstants Type = qghtDayOfMonth;
    int InputMonth = 0;
    int Month = 0;
    int Day = 0;
    int Shift = 0;
    int FirstYear = 0;
    int LastYear = 0;
    int Year = 0;
    bool Enabled = true;
    std::string Name;
};

class LiteralCalendar {
public:
    explicit LiteralCalendar(std::int32_t current);

    std::vector<LiteralRule> Rules;
    std::array<std::int32_t, 3> User{};
    CalendarSettings Settings;

    void Reload();
    void Resolve(std::int32_t day);
    void Build(std::int32_t day);
    bool IsBlocked(std::int32_t day, const DayFlags& flags);
    std::int32_t Diff(std::int32_t first, std::int32_t last);
    std::int32_t Add(std::int32_t day, std::int32_t days);
    std::int32_t FirstOfMonth(std::int32_t day);
    std::string Name(std::int32_t day);
    void SetCurrent(std::int32_t day);
    int ResolvedYear() const { return year_; }

private:
    void ResolveRule(LiteralRule& rule, int year);
    void BuildForCurrent();

    int year_ = 0;
    int tableYear_ = 0;
    int tableMonth_ = 0;
    std::array<bool, 32> marks_{};
    std::array<std::string, 32> names_;
};

} // namespace quillgrid::test
