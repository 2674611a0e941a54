#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/Holidays.h"
#include "quillgrid/calendar/MonthTable.h"

#include <cstdint>
#include <memory>

namespace quillgrid {

/// A calendar's rules, resolved for one year at a time and condensed for one month at a time. Changed rules
/// and user dates show only when the next year is resolved or the next month built: whoever counts days must
/// go through the same years and months, or ask `IsUniform` whether that would make no difference.
class QUILLGRID_EXPORT HolidayBook final : private RuleSettler {
public:
    HolidayBook() = default;
    ~HolidayBook() override;
    HolidayBook(const HolidayBook&) = delete;
    HolidayBook& operator=(const HolidayBook&) = delete;

    const std::shared_ptr<Holidays>& Rules() const { return rules_; }
    /// Neither resolves nor builds.
    void SetRules(std::shared_ptr<Holidays> rules);
    std::int32_t UserDay(std::size_t which) const { return user_[which]; }
    void SetUserDay(std::size_t which, std::int32_t day);

    /// The year for which the rules were last resolved, 0 before the first time. No resolution goes without
    /// building a month: an older table would outlive the rules that it came from.
    std::int32_t ResolvedYear() const { return year_; }
    void Resolve(YearDay day);
    /// Resolves the day's year when it is another one, and builds its month.
    void Show(YearDay day);
    /// Resolves and builds, but only when its year or its month is another one.
    void Visit(YearDay day);
    /// Whether a day is a holiday, visiting it.
    bool IsHoliday(YearDay day);
    MonthTable& Table() { return table_; }

    /// Whether the resolved year, and with it the table, stands as a fresh resolution would leave it, so that
    /// the known years give what going from day to day would give.
    bool IsUniform() { return IsUntouched() && Current() == resolved_; }
    WorkYears& Years(Weekend weekend) { return Current()->Known->Years(weekend); }

private:
    const std::shared_ptr<const RuleSnapshot>& Current() {
        if (!current_ || currentRevision_ != link_->Revision) TakeSnapshot();
        return current_;
    }
    /// Whether the rules still show what the last resolution gave them.
    bool IsUntouched() const {
        return resolved_ && resolvedRevision_ == link_->Revision && resolution_ == link_->Resolutions;
    }
    void TakeSnapshot();
    void ResolveYear(std::int32_t year);
    void Build(YearDay day);
    void Release();
    void SettleRules() override;

    std::shared_ptr<Holidays> rules_ = std::make_shared<Holidays>();
    RuleLink* link_ = &HolidaysAccess::Link(*rules_);
    UserDays user_{};
    std::shared_ptr<const RuleSnapshot> current_;
    std::uint64_t currentRevision_ = 0;
    std::shared_ptr<const RuleSnapshot> resolved_;
    std::uint64_t resolvedRevision_ = 0;
    std::uint64_t resolution_ = 0; // which of all resolutions of the collection was ours
    std::int32_t year_ = 0;
    MonthTable table_;
};

} // namespace quillgrid
