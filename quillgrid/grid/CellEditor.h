#pragma once

#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridRefresh.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/GroupFolding.h"
#include "quillgrid/grid/Navigator.h"
#include "quillgrid/grid/ValueStepper.h"

namespace quillgrid {

/// Routes the keys of the user: to the host's events first, then to movement, to changes of the value, or on
/// to the edit box.
class CellEditor {
public:
    CellEditor(GridState& state, EditSeat& seat, CellCommit& commit, Navigator& navigator,
               ValueStepper& stepper, GridRefresh& refresh, GroupFolding& folding, GridEvents& events,
               const Locale& locale)
        : state_(state),
          seat_(seat),
          commit_(commit),
          navigator_(navigator),
          stepper_(stepper),
          refresh_(refresh),
          folding_(folding),
          events_(events),
          locale_(locale) {}

    /// True: the key was used up.
    bool KeyDown(std::int32_t keyCode, std::int32_t shift);
    bool KeyPress(char32_t& character);
    void KeyUp(std::int32_t keyCode, std::int32_t shift);
    /// What the cell's button does.
    void DropDownCell();
    /// Foreign text may go only into free text that the user may change.
    bool PasteAllowed() const;

private:
    bool HandleKeyDown(const Cell& cell, std::int32_t keyCode, std::int32_t shift);
    bool Move(const Cell& cell, std::int32_t keyCode, std::int32_t shift);
    bool MoveSideways(const Cell& cell, bool right);
    bool MoveToEnd(const Cell& cell, std::int32_t keyCode, std::int32_t shift);
    bool PressF4(const Cell& cell);
    bool RefusePaste();
    bool HandleCharacter(const std::shared_ptr<Cell>& cell, char32_t& character);
    void PressEnter();
    void PressEscape(const std::shared_ptr<Cell>& cell);
    bool TypeIntoList(const Cell& cell, char32_t character);
    bool TypeIntoText(const Cell& cell, char32_t& character);
    char32_t InCaseOf(const Cell& cell, char32_t character) const;
    bool PressSpace(const Cell& cell);
    bool GoesToFront(const Cell& cell, char32_t character) const;
    bool PutMinusInFront();
    bool Refuse();
    bool IsFull(const Cell& cell) const;
    bool IsAllSelected() const;
    bool MayComplete(const Cell& cell, std::int32_t keyCode, std::int32_t shift) const;
    void Complete(const Cell& cell);

    GridState& state_;
    EditSeat& seat_;
    CellCommit& commit_;
    Navigator& navigator_;
    ValueStepper& stepper_;
    GridRefresh& refresh_;
    GroupFolding& folding_;
    GridEvents& events_;
    const Locale& locale_;
};

} // namespace quillgrid
