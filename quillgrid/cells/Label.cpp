#include "quillgrid/cells/Label.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/cells/SeenPlace.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr char AccessMark = '&';

std::int32_t FarEdge(std::int32_t start, std::int32_t length) {
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(std::int64_t{start} + length, INT32_MIN, INT32_MAX));
}

} // namespace

void Label::SetCaption(std::string caption) {
    round_ = 0;
    const auto mark = caption.find(AccessMark);
    if (mark == std::string::npos) {
        display_.reset();
    } else {
        auto display = std::make_unique<std::string>(caption);
        std::erase(*display, AccessMark);
        const auto accessed = DecodeFirst(std::string_view(*display).substr(mark));
        if (accessed.Bytes > 0) accessKey_ = static_cast<std::int32_t>(ToLower(accessed.Character));
        display_ = std::move(display);
    }
    caption_ = std::move(caption);
}

void Label::Move(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
    Writable().Area = MovedDown({left, top, FarEdge(left, width), FarEdge(top, height)}, scrollOffset_);
}

const Label::Place& Label::Kept() const {
    static const Place nowhere;
    return place_ ? *place_ : nowhere;
}

Label::Place& Label::Writable() {
    if (!place_) place_ = std::make_unique<Place>();
    return *place_;
}

Rect Label::SeenAt() const {
    return MovedUp(Kept().Area, scrollOffset_);
}

} // namespace quillgrid
