#pragma once

#include "quillgrid/base/Variant.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quillgrid {

/// What a form designer keeps of a sample cell.
class PersistentCell {
public:
    std::int32_t Index() const { return index_; }
    void SetIndex(std::int32_t index) { index_ = index; }
    /// The key under which the record stands in its collection, "Cell" and a number.
    const std::string& CollectionKey() const { return collectionKey_; }
    void SetCollectionKey(std::string key) { collectionKey_ = std::move(key); }
    /// A `CellTemplateConstants` value.
    std::int16_t Template() const { return template_; }
    void SetTemplate(std::int16_t number) { template_ = number; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption) { caption_ = std::move(caption); }
    const quillgrid::Variant& Value() const { return value_; }
    void SetValue(quillgrid::Variant value) { value_ = std::move(value); }
    const std::string& Group() const { return group_; }
    void SetGroup(std::string key) { group_ = std::move(key); }
    const std::string& Key() const { return key_; }
    void SetKey(std::string key) { key_ = std::move(key); }
    /// Accepted so that every record can be written alike; not kept.
    void SetTooltipText(std::string_view) {}

private:
    std::string collectionKey_;
    std::string caption_;
    std::string group_;
    std::string key_;
    Variant value_ = Variant::Null();
    std::int32_t index_ = 0;
    std::int16_t template_ = 0;
};

} // namespace quillgrid
