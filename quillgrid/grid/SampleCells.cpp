#include "quillgrid/grid/SampleCells.h"

#include "quillgrid/cells/CellAccess.h"

#include <algorithm>

namespace quillgrid {

void SampleCells::StartAnew() {
    records_.Clear();
    records_.Add();
}

void SampleCells::Load() {
    if (loading_ || state_.Terminated) return;
    const FlagGuard loading(loading_);
    const std::int32_t count = std::max(state_.Settings.CellCount, 1);
    cells_.Clear();
    groups_.Clear();
    columns_.Clear();
    while (records_.Count() < count)
        records_.Add();
    for (std::int32_t number = 1; number <= count; ++number)
        AddFrom(*records_.Item(number));
    state_.Settings.CellCount = count;
    shown_ = true;
}

void SampleCells::AddFrom(const PersistentCell& record) {
    const auto cell = cells_.Add({.Caption = Variant(record.Caption()),
                                  .Value = record.Value(),
                                  .CellTemplate = static_cast<CellTemplateConstants>(record.Template()),
                                  .Group = record.Group(),
                                  .TooltipText = record.Key()});
    CellAccess::MarkSample(*cell);
}

void SampleCells::MakeRoom() {
    if (!shown_ || loading_ || !state_.UserMode) return;
    shown_ = false;
    const auto touched = [](const auto& cell) { return !CellAccess::IsSample(*cell); };
    if (std::none_of(cells_.begin(), cells_.end(), touched)) return cells_.Clear();
    for (std::int32_t position = cells_.Count(); position >= 1; --position) {
        if (CellAccess::IsSample(*cells_.Item(position))) cells_.Remove(position);
    }
}

} // namespace quillgrid
