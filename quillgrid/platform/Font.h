#pragma once

#include <string>

namespace quillgrid {

/// A font by description; the host finds the real one.
struct Font {
    std::string Name;  ///< family; empty means the host's own
    double Size = 9.0; ///< points
    bool Bold = false;
    bool Italic = false;

    friend bool operator==(const Font&, const Font&) = default;
};

} // namespace quillgrid
