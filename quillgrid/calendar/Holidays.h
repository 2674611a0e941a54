#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/KeyedList.h"
#include "quillgrid/calendar/Holiday.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/PositionIterator.h"

#include <cstdint>
#include <memory>
#include <string>

namespace quillgrid {

struct HolidayArguments {
    std::string Key{};
    HolidayTypeConstants DayType = qghtDayOfMonth;
    std::int32_t Month = 0; ///< 0 to 12
    std::int32_t Day = 0;   ///< 0 to 31
    std::int16_t Shift = 0;
    std::string Displayname{}; ///< the key when empty
    bool Enabled = true;
};

/// The rules of a calendar in the order in which they were added; later rules win a shared day's name.
class QUILLGRID_EXPORT Holidays {
public:
    using Pointer = std::shared_ptr<Holiday>;
    using Iterator = PositionIterator<Holidays, Holiday>;

    Holidays() = default;
    Holidays(const Holidays&) = delete;
    Holidays& operator=(const Holidays&) = delete;

    /// Appends a rule. Error 20091 for a key that is taken and for a month or day out of range; nothing is
    /// added then. A rule with an empty key is found by its position alone.
    Pointer Add(HolidayArguments arguments);
    /// Error 20092 when there is none.
    Pointer Item(ItemKey which) const;
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    /// Error 20092 when there is none.
    void Remove(ItemKey which);
    void Clear();

    Pointer At(std::size_t position) const;
    std::size_t Size() const { return list_.Count(); }
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

private:
    friend struct HolidaysAccess;

    RuleLinkReference link_ = std::make_shared<RuleLink>();
    KeyedList<Holiday> list_;
    mutable bool handedOut_ = false; // whether anyone outside may hold a rule
};

/// What calendars need of a collection beyond its published members.
struct HolidaysAccess {
    static RuleLink& Link(const Holidays& rules) { return *rules.link_; }
    static const KeyedList<Holiday>& List(const Holidays& rules) { return rules.list_; }
    static bool HandedOut(const Holidays& rules) { return rules.handedOut_; }
    /// The calendar keeps none of the rules that it added itself.
    static void TakeBack(Holidays& rules) { rules.handedOut_ = false; }
};

} // namespace quillgrid
