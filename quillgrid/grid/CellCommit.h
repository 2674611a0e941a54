#pragma once

#include "quillgrid/cells/InputConversion.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/RepaintRequests.h"
#include "quillgrid/grid/TypedSeparators.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/platform/Clock.h"

#include <memory>
#include <string>

namespace quillgrid {

enum class CommitResult : std::uint8_t {
    Done,      ///< also when there was nothing to take over
    Cancelled, ///< a handler keeps the user in the cell, or where it has sent the user
    Gone,      ///< a handler took the control or the cell away
};

/// Takes what was typed over into the current cell: converts, checks, stores, and tells the host.
class CellCommit {
public:
    CellCommit(GridState& state, EditSeat& seat, GridEvents& events, RepaintRequests& repaint,
               const Locale& locale, const Clock& time)
        : state_(state),
          seat_(seat),
          events_(events),
          repaint_(repaint),
          locale_(locale),
          time_(time),
          separators_(state.Settings, locale) {}

    /// A commit within a commit (a handler's message box takes the focus) does nothing.
    CommitResult Commit();
    /// Commits and, unless cancelled, shows the value as the cell formats it.
    CommitResult CommitInPlace();

    /// Its separators hold until the next call.
    InputContext Context() const;

private:
    bool HoldsNewText(const Cell& cell) const;
    CommitResult CommitCell(const std::shared_ptr<Cell>& cell);
    CommitResult CommitText(const std::shared_ptr<Cell>& cell);
    CommitResult CommitSelection(const std::shared_ptr<Cell>& cell);
    bool ReportRefusal(const std::shared_ptr<Cell>& cell, ValidationErrConstants code);
    bool Validate(const std::shared_ptr<Cell>& cell);
    CommitResult Finish(const std::shared_ptr<Cell>& cell, bool cancelled, bool reportChange);
    CommitResult KeepInCell(const Cell& cell);

    GridState& state_;
    EditSeat& seat_;
    GridEvents& events_;
    RepaintRequests& repaint_;
    const Locale& locale_;
    const Clock& time_;
    TypedSeparators separators_;
};

} // namespace quillgrid
