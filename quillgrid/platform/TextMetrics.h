#pragma once

#include "quillgrid/platform/Font.h"

#include <cstdint>
#include <string_view>

namespace quillgrid {

/// Measures text as the host would draw it, in logical pixels.
class TextMetrics {
public:
    virtual ~TextMetrics() = default;

    virtual std::int32_t TextWidth(const Font& font, std::string_view text) const = 0;
    /// The line height of a font: ascent plus descent, whatever the text.
    virtual std::int32_t LineHeight(const Font& font) const = 0;
};

} // namespace quillgrid
