#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/grid/GridPorts.h"
#include "quillgrid/grid/PadResults.h"

#include <memory>

namespace quillgrid {

/// Drops the calculator down and writes its result into the cell.
class CalcDropDown {
public:
    CalcDropDown(PadResults& results, const GridPorts& ports) : results_(results), ports_(ports) {}

    void Show(const std::shared_ptr<Cell>& cell);

private:
    void Listen();
    void Done();
    void Computed() { results_.Repaint(); }

    PadResults& results_;
    const GridPorts& ports_;
    Connection done_;
    Connection computed_;
};

} // namespace quillgrid
