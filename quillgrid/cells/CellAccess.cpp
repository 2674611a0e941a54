#include "quillgrid/cells/CellAccess.h"

#include "quillgrid/cells/OwnerServices.h"
#include "quillgrid/cells/SeenPlace.h"

namespace quillgrid {

namespace {

std::size_t PlaceAfterValue(CellArea area) {
    return (static_cast<std::size_t>(area) & 3U) - 1;
}

} // namespace

Rect CellAccess::Area(const Cell& cell, CellArea area) {
    const CellState& state = cell.state_;
    if (area == CellArea::Value) return MovedUp(state.ValueArea, state.ScrollOffset);
    return MovedUp(state.OtherAreas ? state.OtherAreas->at(PlaceAfterValue(area)) : Rect{},
                   state.ScrollOffset);
}

void CellAccess::SetArea(Cell& cell, CellArea area, const Rect& seen) {
    CellState& state = cell.state_;
    const Rect kept = MovedDown(seen, state.ScrollOffset);
    if (area == CellArea::Value) {
        state.ValueArea = kept;
        return;
    }
    if (!state.OtherAreas) state.OtherAreas = std::make_unique<std::array<Rect, 3>>();
    state.OtherAreas->at(PlaceAfterValue(area)) = kept;
}

void CellAccess::Inherit(Cell& cell, Colour foreColor, bool bold, bool italic) {
    cell.state_.ForeColor = foreColor;
    cell.state_.InheritedForeColor = foreColor;
    cell.state_.FontBold = bold;
    cell.state_.FontItalic = italic;
}

std::int32_t CellAccess::TypeAhead(Cell& cell, char32_t character) {
    if (!cell.IsList()) return 0;
    const auto alive = cell.weak_from_this().lock();
    const auto tick = TickCountOf(cell.Owner());
    cell.SetListIndex(cell.Listitems().TypeAhead(cell.ListIndex(), character, tick));
    return cell.ListIndex();
}

void CellAccess::FreshenText(Cell& cell) {
    if (cell.IsList()) ResolveListSelection(cell);
    // The host may have renamed the chosen entry; an index without an entry keeps the text that was made for
    // it.
    const bool showsEntry = (cell.IsList() || cell.IsBoolean()) &&
                            std::as_const(cell).Listitems().Item(cell.ListIndex()) != nullptr;
    if (cell.state_.StaleText || showsEntry) cell.RefreshText();
}

void CellAccess::ResolveListSelection(Cell& cell) {
    const auto& items = std::as_const(cell).Listitems();
    const auto& data = cell.ItemData();
    if (data.IsNull() || data.IsEmpty() || items.Count() == 0) return;
    const auto chosen = items.Item(cell.ListIndex());
    if (chosen && EqualAsText(chosen->ItemData(), data)) return;
    const auto position = items.PositionOfData(data);
    if (position == 0) return;
    cell.state_.ListIndex = position;
    cell.SetListImage(items.Item(position)->ListImage());
    cell.RefreshText();
}

void CellAccess::LoadValue(Cell& cell, Variant value) {
    if (value.IsNull()) {
        Empty(cell);
    } else {
        cell.AssignValue(std::move(value));
    }
}

void CellAccess::Empty(Cell& cell) {
    const auto alive = cell.weak_from_this().lock();
    if (cell.IsList() || cell.IsBoolean()) {
        if (cell.ListIndex() > 0) cell.SetListImage(Variant::Null()); // it was the entry's
        cell.state_.ListIndex = -1;
        cell.SetRare(&CellExtras::ItemData, Variant::Null());
    }
    cell.Take(Variant::Null());
}

} // namespace quillgrid
