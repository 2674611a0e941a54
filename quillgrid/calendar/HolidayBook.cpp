#include "quillgrid/calendar/HolidayBook.h"

#include "quillgrid/calendar/HolidayAccess.h"

namespace quillgrid {

HolidayBook::~HolidayBook() {
    Release();
}

/// The rules may outlive this: they keep the dates that they would show.
void HolidayBook::Release() {
    if (link_->Pending == this) link_->Settle();
}

void HolidayBook::SetRules(std::shared_ptr<Holidays> rules) {
    if (rules == rules_) return;
    Release();
    rules_ = rules ? std::move(rules) : std::make_shared<Holidays>();
    link_ = &HolidaysAccess::Link(*rules_);
    current_ = nullptr;
    resolved_ = nullptr;
}

void HolidayBook::SetUserDay(std::size_t which, std::int32_t day) {
    if (user_[which] == day) return;
    user_[which] = day;
    current_ = nullptr;
}

void HolidayBook::TakeSnapshot() {
    const auto& before = current_ ? current_ : resolved_;
    current_ = RuleSnapshot::Of(*rules_, user_, before.get());
    currentRevision_ = link_->Revision;
}

void HolidayBook::ResolveYear(std::int32_t year) {
    const auto& current = Current();
    if (year == year_ && resolved_ == current && IsUntouched()) return;
    if (resolved_ != current) resolved_ = current;
    year_ = year;
    resolvedRevision_ = link_->Revision;
    resolution_ = ++link_->Resolutions;
    link_->Pending = this;
}

void HolidayBook::SettleRules() {
    const auto anchors = YearAnchors::Of(year_, resolved_->User);
    const auto& list = HolidaysAccess::List(*rules_);
    for (std::size_t i = 0; i < resolved_->Rules.size(); ++i)
        HolidayAccess::Write(*list.At(i + 1), year_, ResolveRule(resolved_->Rules[i], anchors));
}

void HolidayBook::Build(YearDay day) {
    if (IsUntouched()) {
        table_.BuildFrom(resolved_, day);
    } else {
        link_->Settle();
        table_.BuildFrom(*rules_, day);
    }
}

void HolidayBook::Show(YearDay day) {
    if (day.Year != year_) ResolveYear(day.Year);
    Build(day);
}

void HolidayBook::Resolve(YearDay day) {
    ResolveYear(day.Year);
    Build(day);
}

void HolidayBook::Visit(YearDay day) {
    if (day.Year != year_)
        Resolve(day);
    else if (!table_.IsOf(day.Year, DateOf(day).Month))
        Build(day);
}

bool HolidayBook::IsHoliday(YearDay day) {
    Visit(day);
    return table_.IsMarked(DateOf(day).Day);
}

} // namespace quillgrid
