#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/calendar/CalendarCommands.h"
#include "quillgrid/calendar/CalendarPadState.h"

namespace quillgrid {

/// The menus from which months and years are picked.
class QUILLGRID_EXPORT CalendarMenus {
public:
    CalendarMenus(CalendarPadState& state, CalendarCommands& commands) : state_(state), commands_(commands) {}

    /// Under the caption, at a point of it.
    void ShowMonths(Point at);
    /// Two years back to two years on.
    void ShowYears(Point at);

private:
    void Show(Point at, const std::vector<PopupEntry>& entries, std::function<DateTime(std::size_t)> dateOf);

    CalendarPadState& state_;
    CalendarCommands& commands_;
};

} // namespace quillgrid
