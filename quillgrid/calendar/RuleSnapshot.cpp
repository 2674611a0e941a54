#include "quillgrid/calendar/RuleSnapshot.h"

#include "quillgrid/calendar/HolidayAccess.h"
#include "quillgrid/calendar/Holidays.h"

namespace quillgrid {

WorkYears& KnownMarks::Years(Weekend weekend) {
    auto& years = years_[weekend.Index()];
    if (!years) years.emplace(marks_, weekend);
    return *years;
}

std::shared_ptr<const RuleSnapshot> RuleSnapshot::Of(const Holidays& rules, const UserDays& user,
                                                     const RuleSnapshot* before) {
    auto snapshot = std::make_shared<RuleSnapshot>();
    for (const auto& rule : HolidaysAccess::List(rules)) {
        snapshot->Rules.push_back(HolidayAccess::Input(*rule));
        snapshot->Names.push_back(rule->Displayname());
    }
    snapshot->User = user;
    HolidayMarks marks(snapshot->Rules, user);
    const bool same = before && before->Known->Marks() == marks;
    snapshot->Known = same ? before->Known : std::make_shared<KnownMarks>(std::move(marks));
    return snapshot;
}

} // namespace quillgrid
