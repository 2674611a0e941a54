#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/KeyedList.h"
#include "quillgrid/calendar/CalendarPadSettings.h"
#include "quillgrid/calendar/TimeZone.h"
#include "quillgrid/cells/ItemKey.h"
#include "quillgrid/cells/PositionIterator.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace quillgrid {

struct TimeZoneArguments {
    std::string Key{};
    DateTime FirstDate{};
    DateTime LastDate{};
    std::optional<Colour> BackColor{}; ///< the pad's when left out, here and below
    std::optional<Colour> ForeColor{};
};

/// The coloured date ranges of a calendar pad. They may overlap: the one that was added first wins.
class QUILLGRID_EXPORT TimeZones {
public:
    using Pointer = std::shared_ptr<TimeZone>;
    using Iterator = PositionIterator<TimeZones, TimeZone>;

    /// `settings` hold the colours that ranges get when none are given, and outlive the collection.
    explicit TimeZones(const CalendarPadSettings& settings) : settings_(settings) {}
    TimeZones(const TimeZones&) = delete;
    TimeZones& operator=(const TimeZones&) = delete;

    /// Appends a range. Error 20093 for a key that is taken. A range with an empty key is found by its
    /// position alone.
    Pointer Add(const TimeZoneArguments& arguments);
    /// Error 20092 when there is none.
    Pointer Item(ItemKey which) const;
    std::int32_t Count() const { return static_cast<std::int32_t>(list_.Count()); }
    /// Error 20092 when there is none.
    void Remove(ItemKey which);
    void Clear() { list_.Clear(); }

    /// The first range that holds the date, or nothing.
    Pointer Find(DateTime date) const;

    Pointer At(std::size_t position) const { return list_.At(position); }
    std::size_t Size() const { return list_.Count(); }
    Iterator begin() const { return Iterator(*this); }
    Iterator end() const { return Iterator(); }

private:
    const CalendarPadSettings& settings_;
    KeyedList<TimeZone> list_;
};

} // namespace quillgrid
