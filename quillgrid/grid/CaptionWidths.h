#pragma once

#include "quillgrid/cells/Cells.h"
#include "quillgrid/platform/Font.h"
#include "quillgrid/platform/TextMetrics.h"

#include <cstdint>

namespace quillgrid {

/// Measures each caption once while caption and font stay the same: measuring is what costs most when a long
/// form is laid out again. The labels keep their widths.
class CaptionWidths {
public:
    explicit CaptionWidths(const TextMetrics& metrics) : metrics_(metrics) {}

    /// Group headings do not count. `lineHeight` is that of the font; another one for the same font means
    /// another screen.
    std::int32_t Widest(const Cells& cells, const Font& font, std::int32_t lineHeight);

private:
    std::int32_t WidthOf(Cell& cell) const;

    const TextMetrics& metrics_;
    Font font_;
    std::int32_t lineHeight_ = 0;
    std::uint32_t round_ = 1; ///< widths measured in an earlier one no longer hold
};

} // namespace quillgrid
