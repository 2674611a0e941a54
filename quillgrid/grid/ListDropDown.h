#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/PadResults.h"

#include <memory>
#include <string>

namespace quillgrid {

class Listitem;

/// Drops the list down and writes into the cell what the user picks there.
class ListDropDown {
public:
    ListDropDown(PadResults& results, const GridPorts& ports) : results_(results), ports_(ports) {}

    /// Opens, whether or not the user may change the cell.
    void Show(const std::shared_ptr<Cell>& cell);
    /// Fills the cell's list with the currencies in use. False when the cell has no unit to begin with.
    bool FillCurrencies(Cell& cell) const;
    /// A character typed while the list shows.
    void KeyPress(std::int32_t& character);

private:
    /// What Escape returns to where the list's own row at opening does not say it.
    struct Before {
        bool Restores = false; ///< nothing in the list was chosen, or the text is free
        bool Changed = false;
        std::string Unit;
        Variant Image;
    };

    void Listen();
    void RowChanged();
    void Done();
    void Take(const std::shared_ptr<Cell>& cell);
    void TakeCurrency(Cell& cell, const Listitem& entry) const;
    void Restore(Cell& cell) const;

    PadResults& results_;
    const GridPorts& ports_;
    Connection rowChanged_;
    Connection done_;
    Before before_;
    bool opening_ = false;
    bool escaping_ = false;
};

} // namespace quillgrid
