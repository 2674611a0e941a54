#include "quillgrid/grid/CaptionWidths.h"

namespace quillgrid {

namespace {

// A host that invents captions all the time must not fill the memory with them.
constexpr std::size_t MaxKept = 200'000;

} // namespace

std::int32_t CaptionWidths::WidthOf(const Font& font, const std::string& caption) {
    if (font != font_ || widths_.size() > MaxKept) {
        widths_.clear();
        font_ = font;
    }
    const auto [entry, isNew] = widths_.try_emplace(caption, 0);
    if (isNew) entry->second = metrics_.TextWidth(font, caption);
    return entry->second;
}

} // namespace quillgrid
