#include "quillgrid/cells/Listitem.h"

#include <algorithm>
#include <utility>

namespace quillgrid {

bool Listitem::HasImage() const {
    const auto* key = listImage_.Get<std::string>();
    return key ? !key->empty() : !listImage_.IsNull() && !listImage_.IsEmpty();
}

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
