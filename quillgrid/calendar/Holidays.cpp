#include "quillgrid/calendar/Holidays.h"

#include "quillgrid/cells/LanguageTexts.h"

namespace quillgrid {

namespace {

void Define(Holiday& rule, HolidayArguments& arguments) {
    rule.SetKey(arguments.Key);
    rule.SetDisplayname(arguments.Displayname.empty() ? arguments.Key : std::move(arguments.Displayname));
    rule.SetDayType(arguments.DayType);
    rule.SetDay(arguments.Day);
    rule.SetMonth(arguments.Month);
    rule.SetShift(arguments.Shift);
    rule.SetEnabled(arguments.Enabled);
}

} // namespace

Holidays::Pointer Holidays::Add(HolidayArguments arguments) {
    constexpr const char* source = "Holidays:Add Method";
    link_->Change();
    auto rule = std::make_shared<Holiday>(link_);
    try {
        Define(*rule, arguments);
    } catch (const ControlError&) {
        throw RaiseControlError(20091, source);
    }
    if (!list_.Append(arguments.Key, rule)) throw RaiseControlError(20091, source);
    handedOut_ = true;
    return rule;
}

Holidays::Pointer Holidays::At(std::size_t position) const {
    handedOut_ = true;
    return list_.At(position);
}

Holidays::Pointer Holidays::Item(ItemKey which) const {
    auto rule = FindItem(list_, which);
    if (!rule) throw RaiseControlError(20092, "Holidays:Item Property Get");
    handedOut_ = true;
    return rule;
}

void Holidays::Remove(ItemKey which) {
    const std::size_t position = FindPosition(list_, which);
    if (position == 0) throw RaiseControlError(20092, "Holidays:Remove Method");
    link_->Change();
    list_.RemoveAt(position);
}

void Holidays::Clear() {
    link_->Change();
    list_.Clear();
}

} // namespace quillgrid
