#pragma once

#include "quillgrid/platform/Clock.h"
#include "quillgrid/platform/ImageSource.h"
#include "quillgrid/platform/PropertyBag.h"
#include "quillgrid/platform/TextMetrics.h"
#include "quillgrid/platform/Theme.h"

#include <map>
#include <string>
#include <vector>

namespace quillgrid::test {

/// A bag that leaves out what equals its default.
class MapBag : public PropertyBag {
public:
    std::map<std::string, Variant, std::less<>> Kept;

    Variant Read(std::string_view key, const Variant& fallback) const override {
        const auto found = Kept.find(key);
        return found == Kept.end() ? fallback : found->second;
    }
    void Write(std::string_view key, const Variant& value, const Variant& fallback) override {
        if (!(value == fallback)) Kept[std::string(key)] = value;
    }
};

/// Six pixels a byte; lines of a fixed height a point. Counts what it measures.
class FixedMetrics : public TextMetrics {
public:
    double HeightPerPoint = 1.5;
    mutable int WidthsAsked = 0;

    std::int32_t TextWidth(const Font&, std::string_view text) const override {
        ++WidthsAsked;
        return static_cast<std::int32_t>(6 * text.size());
    }
    std::int32_t LineHeight(const Font& font) const override {
        return static_cast<std::int32_t>(HeightPerPoint * font.Size);
    }
};

/// A list of images "image 1", "image 2" ...
class CountedImages : public ImageSource {
public:
    Size ImagePixels{16, 16};

    explicit CountedImages(std::size_t count) {
        for (std::size_t i = 1; i <= count; ++i)
            images_.push_back({"image " + std::to_string(i), {}, nullptr});
    }
    Size ImageSize() const override { return ImagePixels; }
    std::size_t Count() const override { return images_.size(); }
    const ListedImage* At(std::size_t position) const override {
        return position >= 1 && position <= images_.size() ? &images_[position - 1] : nullptr;
    }
    const ListedImage* Find(std::string_view key) const override {
        for (const auto& image : images_) {
            if (image.Key == key) return &image;
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
    std::vector<ListedImage> images_;
};

} // namespace quillgrid::test
