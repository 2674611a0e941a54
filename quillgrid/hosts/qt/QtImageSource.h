#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/platform/ImageSource.h"

#include <deque>
#include <string>
#include <string_view>

namespace quillgrid::qt {

/// The ready-made images, 16 by 16 logical pixels, drawn crisp at any density and at home in light and dark
/// palettes. They are shapes, not bitmaps, so that the mask colour is only kept.
class QUILLGRID_EXPORT QtImageSource : public ImageSource {
public:
    QtImageSource();

    /// Adds an image behind the others; false, and nothing is added, when the key is taken or the picture is
    /// none. Images stay where they are.
    bool Add(std::string_view key, PictureReference picture, Variant tag = {});

    Size ImageSize() const override { return {16, 16}; }
    std::size_t Count() const override { return images_.size(); }
    const ListedImage* At(std::size_t position) const override;
    const ListedImage* Find(std::string_view key) const override;

    std::int16_t Index() const override { return 0; }
    std::string Name() const override { return "Images"; }
    ObjectReference Object() const override { return nullptr; }
    PictureReference Overlay(const Variant& key1, const Variant& key2) const override;
    Colour MaskColor() const override { return maskColour_; }
    void SetMaskColor(Colour colour) override { maskColour_ = colour; }
    bool UseMaskColor() const override { return useMaskColour_; }
    void SetUseMaskColor(bool use) override { useMaskColour_ = use; }
    std::string Tag() const override { return tag_; }
    void SetTag(std::string_view tag) override { tag_ = tag; }

private:
    const ListedImage* ByVariant(const Variant& key) const;

    std::deque<ListedImage> images_;
    Colour maskColour_ = Rgb(192, 192, 192);
    bool useMaskColour_ = true;
    std::string tag_;
};

} // namespace quillgrid::qt
