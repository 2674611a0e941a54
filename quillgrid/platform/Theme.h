#pragma once

#include "quillgrid/base/Colour.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quillgrid {

/// What the desktop offers and how it looks.
class Theme {
public:
    virtual ~Theme() = default;

    /// The red, green and blue of a system colour (an RGB colour comes back unchanged).
    virtual Colour Resolve(Colour colour) const = 0;
    /// Width of a vertical scroll bar in logical pixels.
    virtual std::int32_t ScrollBarWidth() const = 0;
    virtual std::vector<std::string> ScreenFonts() const = 0;
    virtual std::vector<std::string> PrinterFonts() const = 0;
    /// Device names in the order of the host's printer collection.
    virtual std::vector<std::string> Printers() const = 0;
};

} // namespace quillgrid
