#include "quillgrid/calendar/Holiday.h"

#include "quillgrid/cells/LanguageTexts.h"

#include <algorithm>

namespace quillgrid {

namespace {

std::int16_t StoredYear(std::int32_t year) {
    return static_cast<std::int16_t>(year < quillgrid::FirstYear ? 0 : std::min(year, quillgrid::LastYear));
}

std::int16_t Checked(std::int32_t part, std::int32_t most, const char* source) {
    if (part < 0 || part > most) throw RaiseControlError(20099, source);
    return static_cast<std::int16_t>(part);
}

} // namespace

Holiday::Holiday(RuleLinkReference link) : link_(std::move(link)) {}

void Holiday::SetFirstYear(std::int32_t year) {
    link_->Change();
    firstYear_ = StoredYear(year);
}

void Holiday::SetLastYear(std::int32_t year) {
    link_->Change();
    lastYear_ = StoredYear(year);
}

void Holiday::SetEnabled(bool enabled) {
    link_->Change();
    enabled_ = enabled;
}

void Holiday::SetDayType(HolidayTypeConstants type) {
    link_->Change();
    dayType_ = type;
}

void Holiday::SetDisplayname(std::string name) {
    link_->Change();
    displayname_ = std::move(name);
}

void Holiday::SetShift(std::int16_t shift) {
    link_->Change();
    shift_ = shift;
}

std::int16_t Holiday::Month() const {
    link_->Settle();
    return month_;
}

void Holiday::SetMonth(std::int32_t month) {
    const std::int16_t checked = Checked(month, 12, "Holiday:Month Property Let");
    link_->Change();
    month_ = checked;
    inputMonth_ = checked;
}

std::int16_t Holiday::Day() const {
    link_->Settle();
    return day_;
}

void Holiday::SetDay(std::int32_t day) {
    const std::int16_t checked = Checked(day, 31, "Holiday:Day Property Let");
    link_->Change();
    day_ = checked;
}

std::int16_t Holiday::Year() const {
    link_->Settle();
    return year_;
}

void Holiday::SetYear(std::int16_t year) {
    link_->Change();
    year_ = year;
}

DateTime Holiday::DateValue() const {
    link_->Settle();
    if (year_ == 0) return {};
    return {DayFromParts(year_, month_, day_).value_or(0)};
}

} // namespace quillgrid
