#include "quillgrid/pads/ListPadPainter.h"

#include "quillgrid/cells/Listitem.h"
#include "quillgrid/locale/Coercion.h"
#include "quillgrid/locale/Locale.h"
#include "quillgrid/pads/ListPadCore.h"

#include <algorithm>
#include <optional>

namespace quillgrid {

namespace {

constexpr Colour Black = Rgb(0, 0, 0);

std::optional<EdgeKind> EdgeOf(PopupBorderstyleConstants style) {
    switch (style) {
    case qgpbsClassic: return EdgeKind::Flat;
    case qgpbsRaised: return EdgeKind::Raised;
    case qgpbsSunken: return EdgeKind::Sunken;
    default: return std::nullopt;
    }
}

/// System colours lie beyond the positive 32-bit numbers: they arrive as negative ones or as doubles.
Colour ColourOf(const Variant& data) {
    const double number = ToDouble(data, Locale{}).value_or(0.0);
    if (!(number >= -2147483648.0 && number <= 4294967295.0)) return Black;
    return static_cast<Colour>(static_cast<std::int64_t>(number));
}

/// Keys are texts, positions numbers.
const ListedImage* FindImage(const ImageSource& images, const Variant& which) {
    const ItemKey key(which);
    return key.IsKey() ? images.Find(key.Key()) : images.At(key.Position());
}

} // namespace

Rect ListPadPainter::OnPad(const Rect& area) const {
    return area.Moved(core_.Layout().Frame.Left, core_.Layout().Frame.Top);
}

void ListPadPainter::Paint(const Rect& area) {
    const ListPadLayout& layout = core_.Layout();
    canvas_.Fill(area, core_.Settings().BackColor);
    PaintBorder();
    if (layout.Rows.IsEmpty()) return;
    const Rect rows = OnPad(layout.Rows);
    const std::int32_t top = std::max(area.Top, rows.Top) - rows.Top;
    const std::int32_t bottom = std::min(area.Bottom, rows.Bottom) - rows.Top;
    if (top >= bottom) return;
    canvas_.SetClip(rows);
    const std::int32_t last = std::min(layout.RowUnder(bottom - 1, core_.ScrollPosition()), core_.RowCount());
    for (std::int32_t row = std::max(layout.RowUnder(top, core_.ScrollPosition()), 1); row <= last; ++row)
        PaintRow(row);
    canvas_.ClearClip();
}

void ListPadPainter::PaintBorder() {
    const ListPadLayout& layout = core_.Layout();
    const auto edge = EdgeOf(core_.Settings().BorderStyle);
    if (edge) canvas_.Edge({0, 0, layout.Pad.Width, layout.Pad.Height}, *edge);
}

void ListPadPainter::PaintRow(std::int32_t row) {
    const auto item = core_.RowItem(row);
    const ListPadRow parts = core_.Layout().RowAt(row, core_.ScrollPosition(), item ? item->Indent() : 0);
    const bool current = row == core_.HighlightedRow();
    const Colour ink = current ? ColourHighlightText : ColourWindowText;
    if (current) canvas_.Fill(OnPad(parts.Area), ColourHighlight);
    if (item) {
        PaintEntry(*item, parts, ink);
    } else if (!core_.AttachedCell()) {
        PaintSample(parts.Area, parts.Text, ink);
    }
    if (current && core_.FocusRectShown()) PaintFocusRect(OnPad(parts.Area));
}

// Texts are drawn centred in their line: half of what is left over stands above, as in the layout.
void ListPadPainter::PaintSample(const Rect& row, const Rect& text, Colour ink) {
    canvas_.Text(OnPad({text.Left, row.Top, row.Right, row.Bottom}), ListPadCore::SampleText,
                 {.TextFont = core_.Settings().Font, .Ink = ink});
}

void ListPadPainter::PaintEntry(const Listitem& item, const ListPadRow& parts, Colour ink) {
    PaintSign(item, parts);
    canvas_.Text(OnPad({parts.Text.Left, parts.Area.Top, parts.Area.Right, parts.Area.Bottom}), item.Text(),
                 {.TextFont = core_.FontOf(item), .Ink = ink});
}

void ListPadPainter::PaintSign(const Listitem& item, const ListPadRow& parts) {
    if (core_.HasSwatches()) {
        const Rect swatch = OnPad(parts.Swatch);
        canvas_.Fill(swatch, Black);
        return canvas_.Fill(swatch.Shrunk(1), ColourOf(item.ItemData()));
    }
    if (!images_ || core_.Layout().ImageColumnWidth <= 0 || !item.HasImage()) return;
    const ListedImage* image = FindImage(*images_, item.ListImage());
    if (!image || !image->Content) return;
    const Size size = images_->ImageSize();
    canvas_.Image(
        OnPad({parts.Image.X, parts.Image.Y, parts.Image.X + size.Width, parts.Image.Y + size.Height}),
        *image->Content);
}

/// A thin line, which is crisp at any density.
void ListPadPainter::PaintFocusRect(const Rect& area) {
    const Rect last{area.Left, area.Top, area.Right - 1, area.Bottom - 1};
    canvas_.Line({area.Left, area.Top}, {area.Right, area.Top}, ColourHighlightText);
    canvas_.Line({area.Left, last.Bottom}, {area.Right, last.Bottom}, ColourHighlightText);
    canvas_.Line({area.Left, area.Top}, {area.Left, area.Bottom}, ColourHighlightText);
    canvas_.Line({last.Right, area.Top}, {last.Right, area.Bottom}, ColourHighlightText);
}

} // namespace quillgrid
