#include "quillgrid/cells/Listitem.h"

#include <algorithm>

namespace quillgrid {

void Listitem::SetIndent(std::int32_t indent) {
    indent_ = std::clamp(indent, 0, 99);
}

} // namespace quillgrid
