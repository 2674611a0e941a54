#pragma once

#include "quillgrid/base/Text.h"
#include "quillgrid/platform/TextMetrics.h"

#include <cstddef>

namespace quillgrid::headless {

/// Seven pixels a character, thirteen a line, whatever the font.
class FixedMetrics : public TextMetrics {
public:
    mutable std::size_t Measured = 0; ///< how often a width was asked for

    std::int32_t TextWidth(const Font&, std::string_view text) const override {
        ++Measured;
        return static_cast<std::int32_t>(7 * CharacterCount(text));
    }
    std::int32_t LineHeight(const Font&) const override { return 13; }
};

} // namespace quillgrid::headless
