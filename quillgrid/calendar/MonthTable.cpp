#include "quillgrid/calendar/MonthTable.h"

#include "quillgrid/calendar/HolidayAccess.h"
#include "quillgrid/calendar/Holidays.h"

#include <bit>

namespace quillgrid {

bool MonthTable::IsMarked(std::int32_t day) {
    Fill();
    return day >= 1 && day <= 31 && (marks_ >> day & 1U) != 0;
}

const std::string& MonthTable::Name(std::int32_t day) {
    Fill();
    return names_[day >= 1 && day <= 31 ? static_cast<std::size_t>(day) : 0];
}

void MonthTable::BuildFrom(const Holidays& rules, YearDay day) {
    source_ = nullptr;
    filled_ = true;
    place_ = day;
    Begin();
    for (const auto& rule : HolidaysAccess::List(rules)) {
        const HolidayRule shown = HolidayAccess::Shown(*rule);
        Apply(shown, {shown.Month, shown.Day}, rule->Displayname());
    }
}

void MonthTable::Begin() {
    month_ = DateOf(place_).Month;
    marks_ = 0;
    for (; named_ != 0; named_ &= named_ - 1)
        names_[static_cast<std::size_t>(std::countr_zero(named_))].clear();
}

void MonthTable::Apply(const HolidayRule& rule, MonthDay date, const std::string& name) {
    if (date.Month != month_ || date.Day < 1) return;
    const std::uint32_t bit = 1U << date.Day;
    if (rule.Enabled) marks_ = rule.CountsIn(Year()) ? marks_ | bit : marks_ & ~bit;
    names_[static_cast<std::size_t>(date.Day)] = name;
    named_ |= bit;
}

void MonthTable::Fill() {
    if (filled_) return;
    filled_ = true;
    Begin();
    const auto anchors = YearAnchors::Of(Year(), source_->User);
    for (std::size_t i = 0; i < source_->Rules.size(); ++i)
        Apply(source_->Rules[i], ResolveRule(source_->Rules[i], anchors), source_->Names[i]);
}

} // namespace quillgrid
