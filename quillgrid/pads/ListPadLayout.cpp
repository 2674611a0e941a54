#include "quillgrid/pads/ListPadLayout.h"

#include "quillgrid/pads/PadDump.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::int32_t LargestMeasure = 100'000;
constexpr std::int32_t LeastTextWidth = 50;
constexpr std::int32_t SwatchSize = 10;
constexpr std::int32_t TextGap = 4;

/// A length that can be added to others and multiplied by the rows in view.
std::int32_t Sane(std::int32_t length) {
    return std::clamp(length, 0, LargestMeasure);
}

std::int32_t Saturated(std::int64_t number) {
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(number, -1'000'000'000, 1'000'000'000));
}

void PlaceRows(ListPadLayout& layout, const ListPadMeasures& measures) {
    const std::int32_t textHeight = Sane(measures.TextHeight);
    const std::int32_t imageHeight = Sane(measures.ImageHeight);
    layout.RowHeight = textHeight + 5;
    if (imageHeight > 0) layout.RowHeight = std::max(layout.RowHeight, imageHeight + 2);
    layout.ImageTop = (layout.RowHeight - imageHeight) / 2;
    layout.TextTop = (layout.RowHeight - textHeight) / 2;
}

void PlaceFrame(ListPadLayout& layout, std::int32_t scrollBarWidth) {
    const std::int32_t border = layout.BorderWidth;
    const Size inner{std::max(layout.Pad.Width - 2 * border, 0), std::max(layout.Pad.Height - 2 * border, 0)};
    layout.Frame = {border, border, border + inner.Width, border + inner.Height};
    const std::int32_t rowsWidth = std::max(inner.Width - scrollBarWidth, 0);
    layout.Rows = {0, 0, rowsWidth, inner.Height};
    if (scrollBarWidth > 0) layout.ScrollBar = {inner.Width - scrollBarWidth, 0, inner.Width, inner.Height};
}

} // namespace

ListPadLayout LayOutListPad(const ListPadSettings& settings, const ListPadMeasures& measures) {
    ListPadLayout layout;
    layout.RowCount = std::max(measures.RowCount, 0);
    layout.ShownRows =
        std::min(std::clamp(settings.VisibleRows, ListPadSettings::FewestRows, ListPadSettings::MostRows),
                 layout.RowCount);
    layout.BorderWidth = settings.BorderWidth();
    layout.ImageColumnWidth = Sane(measures.ImageColumnWidth);
    layout.TextColumnWidth = settings.AutoSize ? Sane(measures.TextWidth) : LeastTextWidth;
    PlaceRows(layout, measures);
    layout.SurfaceHeight =
        (std::int64_t{layout.ShownRows} + std::max(layout.RowCount, layout.ShownRows)) * layout.RowHeight;
    layout.ScrollMaximum = std::clamp(layout.RowCount - layout.ShownRows, 1, std::max(layout.RowCount, 1));

    const bool scrolls = layout.ShownRows < layout.RowCount && layout.ShownRows > 1;
    const std::int32_t scrollBarWidth = scrolls ? std::max(Sane(measures.ScrollBarWidth), 1) : 0;
    const std::int32_t wanted = std::max(
        layout.ImageColumnWidth + layout.TextColumnWidth + 12 + scrollBarWidth, Sane(measures.CellWidth));
    layout.Pad = {settings.AutoSize ? wanted : Sane(measures.PadWidth),
                  2 * layout.BorderWidth + layout.ShownRows * layout.RowHeight};
    PlaceFrame(layout, scrollBarWidth);
    return layout;
}

ListPadRow ListPadLayout::RowAt(std::int32_t row, std::int32_t position, std::int32_t indent) const {
    const std::int32_t top = Saturated((std::int64_t{row} - 1 - position) * RowHeight);
    const std::int32_t bottom = top + RowHeight;
    const std::int32_t indentation = Saturated(std::int64_t{indent} * ImageColumnWidth);
    const std::int32_t textLeft = ImageColumnWidth + TextGap;
    const std::int32_t margin = (RowHeight - SwatchSize) / 2;
    return {.Area = {0, top, Rows.Right, bottom},
            .Text = {textLeft + indentation, top + TextTop, Rows.Right + indentation, bottom},
            .Swatch = {margin, top + margin, margin + SwatchSize, top + margin + SwatchSize},
            .Image = {indentation + 2, top + ImageTop}};
}

std::int32_t ListPadLayout::RowUnder(std::int32_t y, std::int32_t position) const {
    return Saturated((std::int64_t{position} * RowHeight + y) / RowHeight + 1);
}

std::string ListPadLayout::DumpText() const {
    return DumpLine("pad", {0, 0, Pad.Width, Pad.Height}) + DumpLine("frame", Frame) +
           DumpLine("rows", Rows) + DumpLine("scroll bar", ScrollBar) + "row height " +
           std::to_string(RowHeight) + ", shown " + std::to_string(ShownRows) + " of " +
           std::to_string(RowCount) + ", scrolls to " + std::to_string(ScrollMaximum) + "\nimage column " +
           std::to_string(ImageColumnWidth) + ", image top " + std::to_string(ImageTop) + ", text column " +
           std::to_string(TextColumnWidth) + ", text top " + std::to_string(TextTop) + ", surface " +
           std::to_string(SurfaceHeight) + '\n';
}

} // namespace quillgrid
