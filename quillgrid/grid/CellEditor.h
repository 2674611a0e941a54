#pragma once

#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/CellDropDown.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/GroupFolding.h"
#include "quillgrid/grid/Navigator.h"
#include "quillgrid/grid/PadKeys.h"
#include "quillgrid/grid/PointerKeys.h"
#include "quillgrid/grid/ValueStepper.h"

namespace quillgrid {

/// Routes the keys of the user: to the host's events first, then to movement, to changes of the value, or on
/// to the edit box.
class CellEditor {
public:
    struct Partners {
        CellCommit& Commit;
        class Navigator& Navigator;
        ValueStepper& Stepper;
        GroupFolding& Folding;
        PadKeys& Pads;
        CellDropDown& DropDown;
        PointerKeys& Pointer;
    };

    CellEditor(GridState& state, EditSeat& seat, const Partners& partners, GridEvents& events,
               const Locale& locale)
        : state_(state),
          seat_(seat),
          commit_(partners.Commit),
          navigator_(partners.Navigator),
          stepper_(partners.Stepper),
          folding_(partners.Folding),
          pads_(partners.Pads),
          dropDown_(partners.DropDown),
          pointer_(partners.Pointer),
          events_(events),
          locale_(locale) {}

    /// True: the key was used up.
    bool KeyDown(std::int32_t keyCode, std::int32_t shift);
    bool KeyPress(char32_t& character);
    void KeyUp(std::int32_t keyCode, std::int32_t shift);
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
    GroupFolding& folding_;
    PadKeys& pads_;
    CellDropDown& dropDown_;
    PointerKeys& pointer_;
    GridEvents& events_;
    const Locale& locale_;
};

} // namespace quillgrid
