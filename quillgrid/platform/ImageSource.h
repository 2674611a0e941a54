#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/base/Variant.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace quillgrid {

/// A picture of the host, kept but never looked into.
class Picture {
public:
    virtual ~Picture() = default;
};
using PictureReference = std::shared_ptr<const Picture>;

/// One image of the host's image list.
struct ListedImage {
    std::string Key;
    Variant Tag;
    PictureReference Content;
};

/// The host's list of small images of one size, reached by position (1-based) or by key (in any case).
class ImageSource {
public:
    virtual ~ImageSource() = default;

    virtual Size ImageSize() const = 0;
    virtual std::size_t Count() const = 0;
    /// Nothing when the position is out of range.
    virtual const ListedImage* At(std::size_t position) const = 0;
    /// Nothing when the key is unknown.
    virtual const ListedImage* Find(std::string_view key) const = 0;

    virtual std::int16_t Index() const = 0;
    virtual std::string Name() const = 0;
    virtual ObjectReference Object() const = 0;
    /// The second image drawn over the first, both by position or key; nothing when one is unknown.
    virtual PictureReference Overlay(const Variant& key1, const Variant& key2) const = 0;
    virtual Colour MaskColor() const = 0;
    virtual void SetMaskColor(Colour colour) = 0;
    virtual bool UseMaskColor() const = 0;
    virtual void SetUseMaskColor(bool use) = 0;
    virtual std::string Tag() const = 0;
    virtual void SetTag(std::string_view tag) = 0;
};

} // namespace quillgrid
