#include "quillgrid/grid/ValueLayout.h"

#include "quillgrid/grid/CellRules.h"
#include "quillgrid/locale/Coercion.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::int32_t SwatchSize = 10;
constexpr std::int32_t SunkenEdge = 2;
constexpr std::int32_t TextGap = 2;
constexpr std::int32_t ImageGap = 4;

bool ShowsSwatch(const Cell& cell) {
    const bool colour = cell.Template() == qgctColor || cell.Template() == qgctSysColor;
    static const Locale neutral;
    // An empty entry, by which a form offers no colour at all, stands for none.
    return colour && cell.ListIndex() >= 1 && ToDouble(cell.ItemData(), neutral).has_value();
}

const Picture* FindImage(const Variant& key, const ImageSource* images) {
    if (!images || key.IsNull() || key.IsEmpty()) return nullptr;
    const ListedImage* image = nullptr;
    if (const auto* name = key.Get<std::string>()) {
        image = images->Find(*name);
    } else if (const auto* position = key.Get<std::int32_t>(); position && *position > 0) {
        image = images->At(static_cast<std::size_t>(*position));
    } else if (const auto* small = key.Get<std::int16_t>(); small && *small > 0) {
        image = images->At(static_cast<std::size_t>(*small));
    }
    return image ? image->Content.get() : nullptr;
}

Rect Centred(const Rect& area, std::int32_t left, Size size) {
    const std::int32_t top = area.Top + (area.Height() - size.Height) / 2;
    return {left, top, left + size.Width, top + size.Height};
}

} // namespace

ValueLayout LayOutValue(const Cell& cell, const Rect& area, const GridLayout& layout,
                        const ImageSource* images, bool dataVisible) {
    ValueLayout parts;
    const std::int32_t left = area.Left + layout.TextInset + TextGap;
    parts.EditArea = area.Shrunk(layout.TextInset + (layout.PropertyList ? 0 : SunkenEdge));
    if (dataVisible && ShowsSwatch(cell)) {
        parts.Swatch = Centred(area, left, {SwatchSize, SwatchSize});
        parts.EditArea.Left += SwatchSize + ImageGap;
    } else if (const Picture* image = FindImage(dataVisible ? cell.ListImage() : Variant("lock"), images)) {
        parts.ImageContent = image;
        parts.Image = Centred(area, left, images->ImageSize());
        parts.EditArea.Left += parts.Image.Width() + ImageGap;
    }
    if (cell.Button() > qgbtNone && cell.Button() <= qgbtInfo) {
        parts.Button = layout.ButtonArea(area);
        parts.EditArea.Right = std::min(parts.EditArea.Right, parts.Button.Left);
    }
    parts.EditArea.Right = std::max(parts.EditArea.Right, parts.EditArea.Left);
    parts.TextArea = parts.EditArea;
    parts.TextArea.Left += TextGap;
    parts.TextArea.Right = std::max(parts.TextArea.Right - TextGap, parts.TextArea.Left);
    return parts;
}

} // namespace quillgrid
