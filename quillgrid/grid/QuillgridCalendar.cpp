#include "quillgrid/grid/GridCore.h"
#include "quillgrid/grid/Quillgrid.h"

namespace quillgrid {

bool Quillgrid::IsWorkDay(DateTime date) {
    return core_->Dates.IsWorkDay(date);
}

std::int32_t Quillgrid::WorkDayDiff(DateTime date1, DateTime date2) {
    return core_->Dates.WorkDayDiff(date1, date2);
}

DateTime Quillgrid::WorkDayAdd(DateTime date1, std::int32_t days) {
    return core_->Dates.WorkDayAdd(date1, days);
}

std::string Quillgrid::Dayname(DateTime date) {
    return core_->Dates.Dayname(date);
}

DateTime Quillgrid::CalendarDate() const {
    return core_->Dates.Calendar().CurrentDate();
}
void Quillgrid::SetCalendarDate(DateTime date) {
    core_->Dates.SetCurrentDate(date);
}

std::shared_ptr<class Holidays> Quillgrid::Holidays() const {
    return core_->Dates.Calendar().Holidays();
}
void Quillgrid::SetHolidays(std::shared_ptr<class Holidays> rules) {
    core_->Dates.Calendar().SetHolidays(std::move(rules));
}

void Quillgrid::SaveHolidays() {
    core_->Dates.Save();
}
void Quillgrid::WriteCalendar(PropertyBag& bag) const {
    if (!core_->State.Terminated) core_->Dates.Write(bag);
}
void Quillgrid::ReadCalendar(const PropertyBag& bag) {
    if (!core_->State.Terminated) core_->Dates.Read(bag);
}

DateTime Quillgrid::UserDate1() const {
    return core_->Dates.Calendar().UserDate1();
}
void Quillgrid::SetUserDate1(DateTime date) {
    core_->Dates.Calendar().SetUserDate1(date);
}

DateTime Quillgrid::UserDate2() const {
    return core_->Dates.Calendar().UserDate2();
}
void Quillgrid::SetUserDate2(DateTime date) {
    core_->Dates.Calendar().SetUserDate2(date);
}

DateTime Quillgrid::UserDate3() const {
    return core_->Dates.Calendar().UserDate3();
}
void Quillgrid::SetUserDate3(DateTime date) {
    core_->Dates.Calendar().SetUserDate3(date);
}

} // namespace quillgrid
