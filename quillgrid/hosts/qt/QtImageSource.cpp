#include "quillgrid/hosts/qt/QtImageSource.h"

#include "quillgrid/base/Text.h"
#include "quillgrid/hosts/qt/IconDrawings.h"
#include "quillgrid/hosts/qt/QtPicture.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace quillgrid::qt {

namespace {

/// The position that a number means, rounded; nothing for what is no number or far out of range.
std::optional<std::size_t> PositionOf(const Variant& key) {
    double number = 0.0;
    if (const auto* small = key.Get<std::int16_t>()) number = *small;
    if (const auto* large = key.Get<std::int32_t>()) number = *large;
    if (const auto* real = key.Get<double>()) number = std::nearbyint(*real);
    if (!(number >= 1.0 && number < 100'000.0)) return std::nullopt;
    return static_cast<std::size_t>(number);
}

} // namespace

QtImageSource::QtImageSource() {
    for (const IconDrawing& icon : Icons)
        images_.push_back({std::string(icon.Key), {}, std::make_shared<QtPicture>(icon.Draw)});
}

bool QtImageSource::Add(std::string_view key, PictureReference picture, Variant tag) {
    if (!picture || (!key.empty() && Find(key))) return false;
    images_.push_back({std::string(key), std::move(tag), std::move(picture)});
    return true;
}

const ListedImage* QtImageSource::At(std::size_t position) const {
    return position >= 1 && position <= images_.size() ? &images_[position - 1] : nullptr;
}

const ListedImage* QtImageSource::Find(std::string_view key) const {
    const auto found = std::find_if(images_.begin(), images_.end(), [key](const ListedImage& image) {
        return EqualIgnoreCase(image.Key, key);
    });
    return found == images_.end() ? nullptr : &*found;
}

const ListedImage* QtImageSource::ByVariant(const Variant& key) const {
    if (const auto* name = key.Get<std::string>()) return Find(*name);
    const auto position = PositionOf(key);
    return position ? At(*position) : nullptr;
}

PictureReference QtImageSource::Overlay(const Variant& key1, const Variant& key2) const {
    const ListedImage* lower = ByVariant(key1);
    const ListedImage* upper = ByVariant(key2);
    if (!lower || !upper) return nullptr;
    return std::make_shared<QtPicture>([under = lower->Content, over = upper->Content](
                                           QPainter& painter, const QRectF& area, const QPalette& palette) {
        for (const auto& content : {under, over}) {
            if (const auto* picture = dynamic_cast<const QtPicture*>(content.get()))
                picture->Draw(painter, area, palette);
        }
    });
}

} // namespace quillgrid::qt
