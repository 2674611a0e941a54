#pragma once

#include "quillgrid/base/Rect.h"

#include <string>
#include <string_view>

namespace quillgrid {

/// One line of a layout as text: "name left,top - right,bottom".
inline std::string DumpLine(std::string_view name, const Rect& rect) {
    return std::string(name) + ' ' + std::to_string(rect.Left) + ',' + std::to_string(rect.Top) + " - " +
           std::to_string(rect.Right) + ',' + std::to_string(rect.Bottom) + '\n';
}

} // namespace quillgrid
