#pragma once

#include "quillgrid/grid/CalcDropDown.h"
#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/DateDropDown.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/ListDropDown.h"
#include "quillgrid/grid/RowSelector.h"
#include "quillgrid/grid/ValueStepper.h"
#include "quillgrid/platform/Clock.h"
#include "quillgrid/platform/Site.h"

#include <memory>

namespace quillgrid {

/// What the button of the current cell does: the other truth of a boolean, a pad, or a question to the host.
class CellDropDown {
public:
    struct Partners {
        OpenPads& Pads;
        const PadResults& Results;
        ListDropDown& Listpad;
        DateDropDown& DatePad;
        CalcDropDown& CalcPad;
        CellCommit& Commit;
        ValueStepper& Stepper;
        RowSelector& Selector;
        GridEvents& Events;
        RepaintRequests& Repaint;
    };

    CellDropDown(GridState& state, const Partners& partners, const Site& site, Clock& clock)
        : state_(state), with_(partners), site_(site), clock_(clock) {}

    /// Takes over what is typed first; nothing more when that is refused. Every button but the spin button.
    void Run();
    /// A boolean cell's other truth, without more ado.
    void Toggle() { with_.Stepper.Toggle(); }

private:
    void Press(const std::shared_ptr<Cell>& cell);
    void PressClock(const std::shared_ptr<Cell>& cell);
    void PressCalc(const std::shared_ptr<Cell>& cell);
    void PressOther(const std::shared_ptr<Cell>& cell);
    void PressText(const std::shared_ptr<Cell>& cell);
    void ToggleList(const std::shared_ptr<Cell>& cell);
    void AskHostSoon(const std::shared_ptr<Cell>& cell, bool staysOpen);
    void AskHost(const std::shared_ptr<Cell>& cell, bool staysOpen);
    void ReleaseButton();

    GridState& state_;
    Partners with_;
    const Site& site_;
    Clock& clock_;
};

} // namespace quillgrid
