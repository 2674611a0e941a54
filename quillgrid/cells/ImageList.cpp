#include "quillgrid/cells/ImageList.h"

#include <algorithm>

namespace quillgrid {

namespace {

std::int16_t Limited(std::int32_t pixels) {
    return static_cast<std::int16_t>(std::clamp(pixels, 0, 32767));
}

} // namespace

std::int16_t ImageList::ImageHeight() const {
    return source_ ? Limited(source_->ImageSize().Height) : std::int16_t{0};
}

std::int16_t ImageList::ImageWidth() const {
    return source_ ? Limited(source_->ImageSize().Width) : std::int16_t{0};
}

std::vector<ListedImage> ImageList::ListImages() const {
    std::vector<ListedImage> images;
    for (std::size_t i = 1; source_ && i <= source_->Count(); ++i) {
        if (const auto* image = source_->At(i)) images.push_back(*image);
    }
    return images;
}

} // namespace quillgrid
