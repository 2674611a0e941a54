#pragma once

#include "quillgrid/grid/CellCommit.h"
#include "quillgrid/grid/EditSeat.h"
#include "quillgrid/grid/GridEvents.h"
#include "quillgrid/grid/GridState.h"

#include <memory>
#include <optional>

namespace quillgrid {

/// Changes a cell's value without typing: steps of numbers and dates, the other truth of a boolean, the list
/// entry that typed characters select. Each tells the host of a change.
class ValueStepper {
public:
    ValueStepper(GridState& state, CellCommit& commit, EditSeat& seat, GridEvents& events,
                 const Locale& locale)
        : state_(state), commit_(commit), seat_(seat), events_(events), locale_(locale) {}

    /// One step up for "+", down for "-". False when the key means nothing here or nothing changed.
    bool Step(char32_t key);
    void Toggle();
    void SelectByTyping(char32_t character);
    /// For list and boolean cells.
    void TakeText(std::string text);

private:
    std::optional<Variant> Stepped(const Cell& cell, bool up) const;
    std::optional<Variant> SteppedDate(const Cell& cell, Currency step) const;
    /// Whether the user may change the cell; beeps if not.
    bool MayChange(const Cell& cell);
    void Report(const std::shared_ptr<Cell>& cell, const Variant& before);

    GridState& state_;
    CellCommit& commit_;
    EditSeat& seat_;
    GridEvents& events_;
    const Locale& locale_;
};

} // namespace quillgrid
