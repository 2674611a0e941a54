#pragma once

#include "quillgrid/base/Text.h"
#include "quillgrid/platform/ImageSource.h"

#include <vector>

namespace quillgrid::headless {

/// Images of 16 by 16 pixels that have only a key.
class FakeImages : public ImageSource {
public:
    void Add(std::string_view key) {
        images_.push_back({std::string(key), Variant(key), std::make_shared<NoPicture>()});
    }

    Size ImageSize() const override { return {16, 16}; }
    std::size_t Count() const override { return images_.size(); }
    const ListedImage* At(std::size_t position) const override {
        return position >= 1 && position <= images_.size() ? &images_[position - 1] : nullptr;
    }
    const ListedImage* Find(std::string_view key) const override {
        for (const ListedImage& image : images_) {
            if (EqualIgnoreCase(image.Key, key)) return &image;
        }
        return nullptr;
    }
    std::int16_t Index() const override { return 0; }
    std::string Name() const override { return "images"; }
    ObjectReference Object() const override { return nullptr; }
    PictureReference Overlay(const Variant&, const Variant&) const override { return nullptr; }
    Colour MaskColor() const override { return 0; }
    void SetMaskColor(Colour) override {}
    bool UseMaskColor() const override { return false; }
    void SetUseMaskColor(bool) override {}
    std::string Tag() const override { return {}; }
    void SetTag(std::string_view) override {}

private:
    class NoPicture : public Picture {};

    std::vector<ListedImage> images_;
};

} // namespace quillgrid::headless
