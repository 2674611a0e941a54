#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/cells/Cell.h"

#include <cstdint>
#include <optional>
#include <string>
#include <utility>

namespace quillgrid {

/// What the control and the collections do to a cell and the host does not.
class QUILLGRID_EXPORT CellAccess {
public:
    static void SetIndex(Cell& cell, std::int32_t index) { cell.index_ = index; }
    static void SetKey(Cell& cell, std::string key) { cell.key_ = std::move(key); }
    /// Only stores the number; `Define` applies a template.
    static void SetTemplate(Cell& cell, CellTemplateConstants number) { cell.state_.Template = number; }
    static void SetErrorCode(Cell& cell, ValidationErrConstants code) { cell.state_.ErrorCode = code; }
    /// False also makes the value the one that `Undo` returns to.
    static void SetChanged(Cell& cell, bool changed) { cell.SetChanged(changed); }
    static const Variant& UndoValue(const Cell& cell) {
        return cell.state_.UndoValue ? *cell.state_.UndoValue : cell.state_.Value;
    }
    static void SetUndoValue(Cell& cell, Variant value) {
        cell.state_.UndoValue = std::make_unique<Variant>(std::move(value));
    }
    /// The value as it is kept, without the conversion of `Value`.
    static const Variant& StoredValue(const Cell& cell) { return cell.state_.Value; }

    static quillgrid::Label& Label(Cell& cell) { return cell.state_.Label; }
    static const quillgrid::Label& Label(const Cell& cell) { return cell.state_.Label; }
    /// As seen: kept with the scroll offset added, given back with the present one taken off.
    static Rect Area(const Cell& cell, CellArea area);
    static void SetArea(Cell& cell, CellArea area, const Rect& seen);
    static std::int32_t ScrollOffset(const Cell& cell) { return cell.state_.ScrollOffset; }
    /// Moves the label along.
    static void SetScrollOffset(Cell& cell, std::int32_t offset) {
        cell.state_.ScrollOffset = offset;
        cell.state_.Label.SetScrollOffset(offset);
    }

    static CellOwner* Owner(const Cell& cell) { return cell.Owner(); }
    static const OwnerLinkReference& Link(const Cell& cell) { return cell.link_; }
    static void SetOwner(Cell& cell, OwnerLinkReference link) { cell.link_ = std::move(link); }

    /// Colour, bold or italic changed since the flag was last taken back.
    static bool RepaintPending(const Cell& cell) { return cell.state_.Repaint; }
    static void SetRepaintPending(Cell& cell, bool pending) { cell.state_.Repaint = pending; }
    /// Whether the control made the cell to fill an empty form and nobody has touched it since.
    static bool IsSample(const Cell& cell) { return cell.state_.Sample; }
    static void MarkSample(Cell& cell) { cell.state_.Sample = true; }
    /// Whether the text colour is another one than the control gave when it made the cell.
    static bool HasOwnForeColor(const Cell& cell) {
        return cell.state_.ForeColor != cell.state_.InheritedForeColor;
    }
    /// Colour and font of the control, taken over by a new cell.
    static void Inherit(Cell& cell, Colour foreColor, bool bold, bool italic);

    /// Chooses the list entry that typed characters select and gives its position; 0 for other styles.
    static std::int32_t TypeAhead(Cell& cell, char32_t character);
    /// Makes the display text anew.
    static void RefreshText(Cell& cell) { cell.RefreshText(); }
    /// Something that the display text depends on has changed.
    static void SpoilText(Cell& cell) { cell.state_.StaleText = true; }
    /// Makes the display text anew where it was spoilt; finds the entry of a list that was filled after its
    /// value was set. For every `Refresh` of the control; never sets `Changed`.
    static void RefreshStaleText(Cell& cell) {
        if (cell.state_.StaleText || cell.IsList() || cell.IsBoolean()) FreshenText(cell);
    }
    /// Finds the entry for the data of a list cell that shows none or another one.
    static void ResolveListSelection(Cell& cell);
    /// Takes a field of a record: Null empties the cell whatever its rules say, a list then has no selection;
    /// anything else is assigned as by `SetValue`.
    QUILLGRID_EXPORT static void LoadValue(Cell& cell, Variant value);

private:
    static void FreshenText(Cell& cell);
    static void Empty(Cell& cell);
};

} // namespace quillgrid
