#include "quillgrid/cells/CellExtras.h"

namespace quillgrid {

const CellExtras& CellExtras::Defaults() {
    static const CellExtras defaults;
    return defaults;
}

} // namespace quillgrid
