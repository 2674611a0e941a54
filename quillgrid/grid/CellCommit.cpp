#include "quillgrid/grid/CellCommit.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/grid/CellRules.h"

namespace quillgrid {

namespace {

/// The cell carries the code and the box its colour while handlers look at the refusal, and never longer: a
/// handler that throws must not leave the cell in error.
class RefusalShown {
public:
    RefusalShown(Cell& cell, ValidationErrConstants code, EditSeat& seat) : cell_(cell), seat_(seat) {
        CellAccess::SetErrorCode(cell_, code);
        seat_.ShowError(true);
    }
    ~RefusalShown() {
        CellAccess::SetErrorCode(cell_, qgErrNone);
        seat_.ShowError(false);
    }
    RefusalShown(const RefusalShown&) = delete;
    RefusalShown& operator=(const RefusalShown&) = delete;

private:
    Cell& cell_;
    EditSeat& seat_;
};

} // namespace

InputContext CellCommit::Context() const {
    return {separators_.Get(), locale_, time_.Now().Day};
}

CommitResult CellCommit::Commit() {
    const auto cell = state_.Current;
    if (state_.Terminated) return CommitResult::Gone;
    if (state_.CommitBusy || !cell || !state_.UserMode) return CommitResult::Done;
    const FlagGuard busy(state_.CommitBusy);
    return CommitCell(cell);
}

CommitResult CellCommit::CommitInPlace() {
    if (state_.CommitBusy) return CommitResult::Done;
    const CommitResult result = Commit();
    if (result == CommitResult::Done) seat_.Refill();
    return result;
}

CommitResult CellCommit::CommitCell(const std::shared_ptr<Cell>& cell) {
    if (IsHeading(*cell)) return CommitResult::Done;
    if (IsListOrBoolean(*cell)) return cell->Changed() ? CommitSelection(cell) : CommitResult::Done;
    return HoldsNewText(*cell) ? CommitText(cell) : CommitResult::Done;
}

bool CellCommit::HoldsNewText(const Cell& cell) const {
    if (!seat_.IsSeatedOn(cell) || !seat_.IsEdited() || !IsEditable(cell, state_.Settings.UserLevel))
        return false;
    return !EqualIgnoreCase(TrimBlanks(seat_.Text()), TrimBlanks(cell.Text()));
}

CommitResult CellCommit::CommitText(const std::shared_ptr<Cell>& cell) {
    const std::string typed = seat_.Text();
    Variant value(WithoutUnit(TrimBlanks(typed), cell->Unit()));
    const ValidationErrConstants code = ConvertInput(value, RulesOf(*cell), Context());
    if (code != qgErrNone) return Finish(cell, ReportRefusal(cell, code), true);
    cell->SetValue(std::move(value));
    return Finish(cell, Validate(cell), true);
}

CommitResult CellCommit::CommitSelection(const std::shared_ptr<Cell>& cell) {
    // The selection itself has reported the change.
    return Finish(cell, Validate(cell), false);
}

bool CellCommit::ReportRefusal(const std::shared_ptr<Cell>& cell, ValidationErrConstants code) {
    if (!cell->CausesValidation()) return false;
    const RefusalShown shown(*cell, code, seat_);
    return events_.ValidateCellError(*cell, code);
}

bool CellCommit::Validate(const std::shared_ptr<Cell>& cell) {
    if (!cell->Changed() || !cell->CausesValidation()) return false;
    if (EqualAsText(cell->Value(), CellAccess::UndoValue(*cell))) return false;
    return events_.ValidateCell(*cell);
}

CommitResult CellCommit::Finish(const std::shared_ptr<Cell>& cell, bool cancelled, bool reportChange) {
    CellAccess::SetChanged(*cell, false);
    const std::int32_t row = state_.Terminated ? 0 : state_.RowOf(*cell);
    if (row == 0) return CommitResult::Gone;
    repaint_.Row(row);
    if (cancelled) return KeepInCell(*cell);
    if (reportChange) events_.Change(*cell);
    return state_.IsCurrent(*cell) ? CommitResult::Done : CommitResult::Gone;
}

CommitResult CellCommit::KeepInCell(const Cell& cell) {
    if (state_.IsCurrent(cell)) {
        seat_.Refill();
        seat_.KeepFocus();
    } // otherwise a handler has sent the user to another cell, and that is where to stay
    return CommitResult::Cancelled;
}

} // namespace quillgrid
