#include "quillgrid/cells/Listitem.h"

#include <algorithm>
#include <utility>

namespace quillgrid {

void Listitem::SetListImage(Variant key) {
    const bool had = HasImage();
    listImage_ = std::move(key);
    if (!imagesOfList_ || HasImage() == had) return;
    had ? --*imagesOfList_ : ++*imagesOfList_;
}

void Listitem::SetIndent(std::int32_t indent) {
    indent_ = std::clamp(indent, 0, 99);
}

} // namespace quillgrid
