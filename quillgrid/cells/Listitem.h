#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/base/Variant.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

/// One entry of a list-style cell.
class QUILLGRID_EXPORT Listitem {
public:
    Listitem() = default;
    Listitem(const Listitem&) = delete;
    Listitem& operator=(const Listitem&) = delete;

    /// The position at which it was added; 0 for an entry of no list.
    std::int32_t Index() const { return index_; }

    const std::string& Text() const { return text_; }
    void SetText(std::string text) { text_ = std::move(text); }
    /// The value that a cell takes when this entry is chosen.
    const Variant& ItemData() const { return itemData_; }
    void SetItemData(Variant data) { itemData_ = std::move(data); }
    /// Key of an image in the control's image list, Null when there is none.
    const Variant& ListImage() const { return listImage_; }
    void SetListImage(Variant key);
    /// Whether there is a key at all.
    bool HasImage() const;
    std::int32_t Indent() const { return indent_; }
    /// Limited to 0..99.
    void SetIndent(std::int32_t indent);

private:
    friend class Listitems;

    std::string text_;
    Variant itemData_;
    Variant listImage_ = Variant::Null();
    std::int32_t index_ = 0;
    std::int32_t indent_ = 0;
    /// How many entries of the list have an image: kept here as well, so that nobody needs to look at them
    /// all. Null for an entry of no list.
    std::shared_ptr<std::size_t> imagesOfList_;
};

} // namespace quillgrid
