#pragma once

#include "quillgrid/platform/Font.h"
#include "quillgrid/platform/TextMetrics.h"

#include <cstdint>
#include <string>
#include <unordered_map>

namespace quillgrid {

/// Widths of captions, each measured once while the font stays the same: measuring is what costs most when a
/// long form is laid out again.
class CaptionWidths {
public:
    explicit CaptionWidths(const TextMetrics& metrics) : metrics_(metrics) {}

    std::int32_t WidthOf(const Font& font, const std::string& caption);

private:
    const TextMetrics& metrics_;
    Font font_;
    std::unordered_map<std::string, std::int32_t> widths_;
};

} // namespace quillgrid
