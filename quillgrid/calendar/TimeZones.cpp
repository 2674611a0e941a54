#include "quillgrid/calendar/TimeZones.h"

#include "quillgrid/cells/LanguageTexts.h"

#include <algorithm>

namespace quillgrid {

TimeZones::Pointer TimeZones::Add(const TimeZoneArguments& arguments) {
    auto range = std::make_shared<TimeZone>();
    range->SetKey(arguments.Key);
    range->SetFirstDate(arguments.FirstDate);
    range->SetLastDate(arguments.LastDate);
    range->SetBackColor(arguments.BackColor.value_or(settings_.BackColor));
    range->SetForeColor(arguments.ForeColor.value_or(settings_.ForeColor));
    if (!list_.Append(arguments.Key, range)) throw RaiseControlError(20093, "TimeZones:Add Method");
    return range;
}

TimeZones::Pointer TimeZones::Item(ItemKey which) const {
    auto range = FindItem(list_, which);
    if (!range) throw RaiseControlError(20092, "TimeZones:Item Property Get");
    return range;
}

void TimeZones::Remove(ItemKey which) {
    const std::size_t position = FindPosition(list_, which);
    if (position == 0) throw RaiseControlError(20092, "TimeZones:Remove Method");
    list_.RemoveAt(position);
}

TimeZones::Pointer TimeZones::Find(DateTime date) const {
    const auto found = std::find_if(list_.begin(), list_.end(),
                                    [date](const Pointer& range) { return range->Contains(date); });
    return found == list_.end() ? nullptr : *found;
}

} // namespace quillgrid
