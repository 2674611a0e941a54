#include "quillgrid/cells/Cells.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/cells/CellOwner.h"
#include "quillgrid/cells/LanguageTexts.h"

namespace quillgrid {

Cells::Pointer Cells::Add(CellArguments arguments) {
    if (link_->Owner) link_->Owner->AddingCell();
    auto cell = NewCell(arguments);
    Insert(cell, arguments);
    DefineOrTakeOut(cell, arguments);
    TellOrderChanged();
    return cell;
}

Cells::Pointer Cells::NewCell(const CellArguments& arguments) const {
    auto cell = std::make_shared<Cell>(link_);
    const auto defaults = link_->Owner ? link_->Owner->Defaults() : CellDefaults{};
    CellAccess::SetKey(*cell, arguments.Key);
    CellAccess::Inherit(*cell, defaults.CellForeColor, defaults.FontBold, defaults.FontItalic);
    cell->SetTooltipText(arguments.TooltipText);
    return cell;
}

void Cells::Insert(const Pointer& cell, const CellArguments& arguments) {
    const bool inside = arguments.Index >= 1 && arguments.Index <= Count();
    const auto position = inside ? static_cast<std::size_t>(arguments.Index) : list_.Count() + 1;
    if (!list_.Insert(position, arguments.Key, cell)) {
        TellOrderChanged();
        throw RaiseControlError(20093, "Cells.Add Method");
    }
    if (inside) Renumber();
    CellAccess::SetIndex(*cell, static_cast<std::int32_t>(position));
}

void Cells::DefineOrTakeOut(const Pointer& cell, CellArguments& arguments) {
    if (arguments.Group.empty() && link_->Owner) arguments.Group = link_->Owner->CurrentGroup();
    try {
        cell->Define({.NewCaption = std::move(arguments.Caption),
                      .NewValue = std::move(arguments.Value),
                      .NewCellTemplate = arguments.CellTemplate,
                      .NewGroup = std::move(arguments.Group)});
    } catch (const ControlError&) {
        TakeOut(*cell);
        TellOrderChanged();
        throw RaiseControlError(20093, "Cells.Add Method");
    }
}

void Cells::TakeOut(const Cell& cell) {
    if (list_.RemoveAt(list_.PositionOf(&cell))) Renumber();
}

Cells::Pointer Cells::Item(ItemKey which) const {
    auto cell = Find(which);
    if (!cell) throw RaiseControlError(20092, "Cells.Item Property Get");
    return cell;
}

std::int32_t Cells::Remove(ItemKey which) {
    const std::size_t position = PositionOf(which);
    const auto cell = list_.RemoveAt(position);
    if (!cell) throw RaiseControlError(20092, "Cells.Remove Method");
    if (position <= list_.Count()) Renumber(); // the last one leaves no gap
    if (link_->Owner) link_->Owner->CellRemoved(*cell);
    TellOrderChanged();
    return Count();
}

/// A cell's own number is its position until the control sorts: trying it first saves most searches.
std::size_t Cells::PositionOf(ItemKey which) const {
    const auto cell = Find(which);
    if (!cell) return 0;
    if (!which.IsKey()) return which.Position();
    const auto hint = ItemKey(cell->Index()).Position();
    return list_.At(hint) == cell ? hint : list_.PositionOf(cell.get());
}

void Cells::Clear() {
    const auto cells = std::exchange(list_, {}); // the owner may still look at a cell while it lets go
    if (link_->Owner) link_->Owner->CellsCleared();
    TellOrderChanged();
}

void Cells::Renumber() {
    std::int32_t position = 0;
    for (const auto& cell : list_)
        CellAccess::SetIndex(*cell, ++position);
}

void Cells::TellOrderChanged() const {
    if (link_->Owner) link_->Owner->OrderChanged();
}

} // namespace quillgrid
