#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/platform/ImageSource.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace quillgrid {

/// The control's image list as the host sees it: hands everything on to the host's own list and keeps
/// nothing. Without a list, reads give 0, "" or nothing and writes do nothing.
class QUILLGRID_EXPORT ImageList {
public:
    explicit ImageList(ImageSource* source = nullptr) : source_(source) {}

    std::int16_t ImageHeight() const;
    std::int16_t ImageWidth() const;
    std::int16_t Index() const { return source_ ? source_->Index() : std::int16_t{0}; }
    /// The images in their order.
    std::vector<ListedImage> ListImages() const;
    Colour MaskColor() const { return source_ ? source_->MaskColor() : 0; }
    void SetMaskColor(Colour colour) {
        if (source_) source_->SetMaskColor(colour);
    }
    std::string Name() const { return source_ ? source_->Name() : std::string(); }
    ObjectReference Object() const { return source_ ? source_->Object() : nullptr; }
    /// The second image over the first, both by position or key; nothing when one is unknown.
    PictureReference Overlay(const Variant& key1, const Variant& key2) const {
        return source_ ? source_->Overlay(key1, key2) : nullptr;
    }
    std::string tag() const { return source_ ? source_->Tag() : std::string(); }
    void Settag(std::string_view text) {
        if (source_) source_->SetTag(text);
    }
    bool UseMaskColor() const { return source_ && source_->UseMaskColor(); }
    void SetUseMaskColor(bool use) {
        if (source_) source_->SetUseMaskColor(use);
    }

    /// The host's list; null releases it.
    ImageSource* Source() const { return source_; }
    void SetSource(ImageSource* source) { source_ = source; }

private:
    ImageSource* source_;
};

} // namespace quillgrid
