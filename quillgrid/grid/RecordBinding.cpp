#include "quillgrid/grid/RecordBinding.h"

#include "quillgrid/cells/CellAccess.h"

namespace quillgrid {

void RecordBinding::LoadRecord(const Record& record) {
    const FlagGuard silent(state_.Silent, true, false);
    for (const auto& cell : cells_) {
        if (cell->Key().empty()) continue;
        if (auto value = record.Field(cell->Key())) CellAccess::LoadValue(*cell, std::move(*value));
    }
    ShowNewValues();
}

void RecordBinding::AddNew() {
    const FlagGuard silent(state_.Silent, true, false);
    for (const auto& cell : cells_) {
        CellAccess::LoadValue(*cell, cell->Default());
        CellAccess::SetChanged(*cell, false);
    }
    ShowNewValues();
}

/// What was typed belonged to the values before, so the edit box must not bring it into the new ones.
void RecordBinding::ShowNewValues() {
    seat_.Refill();
    repaint_.Rows();
}

} // namespace quillgrid
