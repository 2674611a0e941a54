#include "quillgrid/grid/RowPainter.h"

#include "quillgrid/cells/CellAccess.h"
#include "quillgrid/grid/CellLook.h"
#include "quillgrid/grid/CellRules.h"
#include "quillgrid/locale/Coercion.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr Colour Black = Rgb(0, 0, 0);
constexpr std::int32_t LabelGap = 2;

/// The colour that the chosen entry of a colour list stands for. System colours lie beyond the positive
/// 32-bit numbers, so they may arrive as negative ones or as doubles.
Colour SwatchColour(const Cell& cell) {
    static const Locale neutral;
    const double number = ToDouble(cell.ItemData(), neutral).value_or(0.0);
    if (!(number >= -2147483648.0 && number <= 4294967295.0)) return Black;
    return static_cast<Colour>(static_cast<std::int64_t>(number));
}

void PaintSwatch(Canvas& canvas, const Rect& area, Colour colour) {
    canvas.Fill(area, Black);
    canvas.Fill(area.Shrunk(1), colour);
}

} // namespace

Rect Intersection(const Rect& left, const Rect& right) {
    const Rect both{std::max(left.Left, right.Left), std::max(left.Top, right.Top),
                    std::min(left.Right, right.Right), std::min(left.Bottom, right.Bottom)};
    return both.IsEmpty() ? Rect{} : both;
}

/// In the property list the first pixel line of every row but the top one, and the last pixel column of the
/// left side, belong to the grid.
Rect RowPainter::Background(Rect area, std::int32_t row, bool leftSide) const {
    if (!state_.Layout.PropertyList) return area;
    if (row > state_.FirstVisible) area.Top += 1;
    if (leftSide) area.Right -= 1;
    return area;
}

void RowPainter::PaintValue(const Cell& cell, std::int32_t row) {
    const Rect area = state_.ValueArea(row);
    canvas_.Fill(Background(area, row, state_.Layout.LabelsRight), ValuePaper(cell, state_));
    if (IsHeading(cell)) return;
    if (!state_.Layout.PropertyList) canvas_.Edge(area, EdgeKind::Sunken);
    const bool visible = IsDataVisible(cell, state_.Settings.UserLevel);
    const ValueLayout parts = LayOutValue(cell, area, state_.Layout, images_, visible);
    PaintButton(cell, row, parts.Button);
    PaintDecoration(parts, cell);
    if (!visible) return;
    if (cell.ShowPercent()) {
        PaintPercent(cell, area, row == state_.CurrentRow);
    } else {
        PaintText(cell, parts.TextArea);
    }
}

/// The grid's line above the row stays free.
void RowPainter::PaintButton(const Cell& cell, std::int32_t row, const Rect& strip) {
    if (strip.IsEmpty()) return;
    const Rect area = Background(strip, row, false);
    const ButtonLook look = state_.LookOf({MousePart::Kind::CellButton, row});
    if (state_.Settings.Appearance == qgap3D) {
        canvas_.PushButton(area, look);
        canvas_.Line({area.Left, area.Top}, {area.Left, area.Bottom}, ColourLight3D);
    } else {
        canvas_.Fill(area, state_.Colours.CellBackground);
        // The value's own edge goes on around a flat strip.
        if (!state_.Layout.PropertyList) canvas_.Edge(state_.ValueArea(row), EdgeKind::Sunken);
        if (look == ButtonLook::Pressed) canvas_.Edge(area, EdgeKind::SunkenOuter);
        if (look == ButtonLook::Hot) canvas_.Edge(area, EdgeKind::RaisedInner);
    }
    canvas_.DrawGlyph(area, static_cast<Glyph>(cell.Button() - qgbtDropDown), look);
}

void RowPainter::PaintGroupGlyph(std::int32_t row, bool expanded) {
    canvas_.DrawGlyph(state_.Layout.GroupArea(row - state_.FirstVisible),
                      expanded ? Glyph::Collapse : Glyph::Expand, ButtonLook::Normal);
}

void RowPainter::PaintDecoration(const ValueLayout& parts, const Cell& cell) {
    if (!parts.Swatch.IsEmpty()) PaintSwatch(canvas_, parts.Swatch, SwatchColour(cell));
    if (parts.ImageContent) canvas_.Image(parts.Image, *parts.ImageContent);
}

void RowPainter::PaintText(const Cell& cell, const Rect& area) {
    const std::string text = ShownText(cell, state_.Settings);
    if (text.empty()) return;
    canvas_.Text(
        area, text,
        {ValueFont(cell, state_.Settings), ValueInk(cell, state_), LimitedAlignment(cell.Alignment())});
}

Rect RowPainter::PercentArea(const Rect& value) const {
    const std::int32_t inset = state_.Layout.TextInset;
    Rect area{value.Left + inset - 1, value.Top + inset, value.Right - inset, value.Bottom - inset};
    if (!state_.Layout.LabelsRight) area = area.Moved(1, 0);
    if (state_.Layout.PropertyList) area.Bottom += 1;
    return area;
}

void RowPainter::PaintPercent(const Cell& cell, const Rect& value, bool plain) {
    const Rect area = PercentArea(value);
    const std::string text = ShownText(cell, state_.Settings);
    TextStyle style{ValueFont(cell, state_.Settings), ValueInk(cell, state_), qgalCenter};
    // On one line with the texts of the other rows, though the bar is not centred in a property list.
    const Rect line{area.Left, value.Top, area.Right, value.Bottom};
    canvas_.Text(line, text, style);
    const std::int64_t percentage = std::clamp<std::int64_t>(cell.PercentValue().ToInteger(), 0, 100);
    if (plain || percentage == 0) return;
    Rect filled = area;
    filled.Right = area.Left + static_cast<std::int32_t>((area.Width() * percentage + 50) / 100);
    // The same text again, in the bar's ink, where the bar lies under it.
    canvas_.SetClip(Intersection(filled, clip_));
    canvas_.Fill(filled, cell.FillColor());
    style.Ink = ColourHighlightText;
    canvas_.Text(line, text, style);
    canvas_.SetClip(clip_);
}

void RowPainter::PaintLabel(const Cell& cell, std::int32_t row) {
    const EffectiveColours& colours = state_.Colours;
    const bool focus = row == state_.CurrentRow;
    const Rect area = state_.Layout.LabelArea(row - state_.FirstVisible);
    canvas_.Fill(Background(area, row, !state_.Layout.LabelsRight),
                 focus ? colours.LabelBackgroundFocus : colours.LabelBackground);
    Rect text = IsHeading(cell) ? state_.RowArea(row) : area;
    text.Left += state_.Layout.TextInset + LabelGap;
    text.Right = std::max(text.Right - state_.Layout.TextInset - LabelGap, text.Left);
    const Label& label = CellAccess::Label(cell);
    canvas_.Text(text, label.DisplayCaption(),
                 {state_.Settings.Font, focus ? colours.LabelTextFocus : colours.LabelText,
                  LimitedAlignment(label.Alignment())});
}

} // namespace quillgrid
