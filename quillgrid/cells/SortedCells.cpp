#include "quillgrid/cells/SortedCells.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/LanguageTexts.h"

namespace quillgrid {

void SortedCells::Add(const Pointer& cell, std::int32_t position) {
    const bool known = position == 0 || At(ItemKey(position).Position());
    if (!cell || !known) throw RaiseControlError(20092, "SortedCells.Add Method");
    list_.Insert(ItemKey(position).Position(), {}, cell);
    CellAccess::SetIndex(*cell, position == 0 ? Count() : position);
}

void SortedCells::Assign(std::vector<Pointer> cells) {
    list_.Assign(std::move(cells));
    Renumber();
}

void SortedCells::Renumber() {
    std::int32_t place = 0;
    for (const auto& cell : list_)
        CellAccess::SetIndex(*cell, ++place);
}

SortedCells::Pointer SortedCells::Item(std::int32_t position) const {
    auto cell = At(ItemKey(position).Position());
    if (!cell) throw RaiseControlError(20092, "SortedCells.Item Property Get");
    return cell;
}

void SortedCells::Remove(std::int32_t position) {
    if (!list_.RemoveAt(ItemKey(position).Position())) throw RaiseControlError(20092, "Cells.Remove Method");
    if (position <= Count()) Renumber();
}

/// `Index` is the place unless the cell is not shown or was renumbered since.
std::int32_t SortedCells::PositionOf(const Cell& cell) const {
    if (At(ItemKey(cell.Index()).Position()).get() == &cell) return cell.Index();
    return static_cast<std::int32_t>(list_.PositionOf(&cell));
}

} // namespace quillgrid
