#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/cells/Cells.h"
#include "quillgrid/grid/GridCalendar.h"
#include "quillgrid/grid/PadResults.h"
#include "quillgrid/platform/Clock.h"

#include <memory>

namespace quillgrid {

/// Drops the calendar down and writes the date into the cell.
class DateDropDown {
public:
    DateDropDown(PadResults& results, const Cells& cells, GridCalendar& dates, const Locale& locale,
                 const Clock& time)
        : results_(results), cells_(cells), dates_(dates), locale_(locale), time_(time) {}

    /// Opens; only to be looked at where the user's level is too low.
    void Show(const std::shared_ptr<Cell>& cell);
    /// A character typed while the calendar shows.
    void KeyPress(std::int32_t& character);

private:
    void Listen();
    void SetDates(const Cell& cell);
    void DateChanged();
    void Done() { results_.Close(false); }

    PadResults& results_;
    const Cells& cells_;
    GridCalendar& dates_;
    const Locale& locale_;
    const Clock& time_;
    Connection dateChanged_;
    Connection done_;
};

} // namespace quillgrid
