#include "quillgrid/grid/FramePainter.h"

#include "quillgrid/cells/CellAccess.h"

#include <algorithm>
#include <optional>

namespace quillgrid {

namespace {

constexpr std::int32_t TipsInset = 4;
constexpr std::int32_t BoxGap = 4;

/// Border and bevels share their first six numbers and the edges that these mean.
std::optional<EdgeKind> EdgeFor(std::int32_t style) {
    switch (style) {
    case qgbsFlat: return EdgeKind::Flat;
    case qgbsSunken: return EdgeKind::Sunken;
    case qgbsRaised: return EdgeKind::Raised;
    case qgbsSunkenLight: return EdgeKind::SunkenOuter;
    case qgbsRaisedLight: return EdgeKind::RaisedInner;
    default: return std::nullopt;
    }
}

void PaintEdge(Canvas& canvas, const Rect& area, std::int32_t style) {
    if (const auto kind = EdgeFor(style)) canvas.Edge(area, *kind);
}

/// The two lines that set a panel or a dialog's left part off from what stands beside it.
void PaintPanelLines(Canvas& canvas, const Rect& control, BevelOuterConstants bevel) {
    const auto line = [&](std::int32_t x, Colour colour) {
        canvas.Line({x, control.Top}, {x, control.Bottom}, colour);
    };
    switch (bevel) {
    case qgboPanelLeft:
        line(control.Right - 2, ColourButtonShadow);
        line(control.Right - 1, ColourDarkShadow);
        break;
    case qgboPanelRight:
        line(0, ColourButtonFace);
        line(1, ColourButtonHighlight);
        break;
    case qgboDialogLeft:
        line(control.Right - 2, ColourButtonShadow);
        line(control.Right - 1, ColourButtonHighlight);
        break;
    default: break;
    }
}

/// Its upper edge runs through the middle of the caption, which has no room further up beside a narrow bevel.
Rect GroupFrame(const GridLayout& layout) {
    Rect frame = layout.InnerBevel;
    const Rect& caption = layout.GroupCaption;
    if (!caption.IsEmpty()) frame.Top = std::max(frame.Top, caption.Top + caption.Height() / 2 - 1);
    return frame;
}

EdgeKind BoxEdge(ButtonLook look) {
    switch (look) {
    case ButtonLook::Hot: return EdgeKind::RaisedInner;
    case ButtonLook::Pressed: return EdgeKind::SunkenOuter;
    default: return EdgeKind::Flat;
    }
}

} // namespace

Rect FramePainter::StyledContent() const {
    const Rect& content = state_.Layout.Content;
    const Margins& style = state_.Layout.StyleMargin;
    return {content.Left - style.Left, content.Top - style.Top, content.Right + style.Right,
            content.Bottom + style.Bottom};
}

void FramePainter::PaintBackground() {
    const GridLayout& layout = state_.Layout;
    canvas_.Fill(layout.Control, state_.Colours.Background);
    if (!layout.PropertyList) {
        if (!layout.GroupMargin.IsEmpty()) canvas_.Fill(layout.GroupMargin, state_.Colours.GroupBox);
        return;
    }
    canvas_.Fill(StyledContent(), state_.Colours.CellBackground);
    if (!layout.Tips.IsEmpty()) canvas_.Fill(layout.Tips, state_.Colours.CellBackground);
    const std::int32_t border = state_.Settings.BorderStyle;
    if (border == qgbsFlat || border == qgbsSunkenLight) {
        const Rect& frame = layout.Frame;
        canvas_.Fill({frame.Left + 1, frame.Top + 1, frame.Right - 2, frame.Bottom - 2}, ColourWindow);
    }
    // Last, or that fill would hide it.
    if (!layout.GroupMargin.IsEmpty()) canvas_.Fill(layout.GroupMargin, state_.Colours.GroupBox);
}

void FramePainter::PaintCaptionBar() {
    const GridLayout& layout = state_.Layout;
    if (!layout.CaptionShown()) return;
    Rect text = layout.CaptionBar;
    if (!layout.MenuBox.IsEmpty()) text.Left = layout.MenuBox.Right + BoxGap;
    if (!layout.CloseBox.IsEmpty()) text.Right = std::max(layout.CloseBox.Left - BoxGap, text.Left);
    canvas_.Text(text, state_.Settings.Caption,
                 {state_.Settings.CaptionFont, state_.Colours.Text, qgalLeftJustify});
    PaintBox(layout.CloseBox, Glyph::Close, MousePart::Kind::CloseBox);
    PaintBox(layout.MenuBox, Glyph::DropDown, MousePart::Kind::MenuBox);
}

void FramePainter::PaintBox(const Rect& box, Glyph glyph, MousePart::Kind kind) {
    if (box.IsEmpty()) return;
    const ButtonLook look = state_.LookOf({kind, 0});
    canvas_.Fill(box, state_.Colours.Background);
    canvas_.DrawGlyph(box, glyph, ButtonLook::Normal);
    canvas_.Edge(box, BoxEdge(look));
}

void FramePainter::PaintEdges() {
    const GridSettings& settings = state_.Settings;
    PaintEdge(canvas_, state_.Layout.Control, settings.BevelOuter);
    PaintPanelLines(canvas_, state_.Layout.Control, settings.BevelOuter);
    const bool groupFrame = settings.BevelInner == qgbiGroupFrame;
    if (groupFrame) canvas_.Edge(GroupFrame(state_.Layout), EdgeKind::Etched);
    if (!groupFrame) PaintEdge(canvas_, state_.Layout.InnerBevel, settings.BevelInner);
    PaintEdge(canvas_, state_.Layout.Frame, settings.BorderStyle);
    if (!state_.Layout.Tips.IsEmpty()) PaintEdge(canvas_, state_.Layout.Tips, settings.BorderStyle);
    if (groupFrame) PaintGroupCaption();
}

/// It interrupts the frame's upper edge, and comes last: the border below would strike through its lower
/// half.
void FramePainter::PaintGroupCaption() {
    const Rect& caption = state_.Layout.GroupCaption;
    if (caption.IsEmpty()) return;
    canvas_.Fill(caption, state_.Colours.Background);
    canvas_.Text(caption, state_.Settings.Caption,
                 {state_.Settings.CaptionFont, state_.Colours.Text, qgalCenter});
}

void FramePainter::PaintTips() {
    Rect area = state_.Layout.Tips.Shrunk(TipsInset);
    if (area.IsEmpty()) return;
    canvas_.Fill(area,
                 state_.Layout.PropertyList ? state_.Colours.CellBackground : state_.Colours.Background);
    const auto cell = state_.Current;
    if (!cell) return;
    Font bold = state_.Settings.Font;
    bold.Bold = true;
    const std::int32_t below = std::min(area.Top + state_.Layout.TipsTitleHeight, area.Bottom);
    canvas_.Text({area.Left, area.Top, area.Right, below}, CellAccess::Label(*cell).DisplayCaption(),
                 {bold, state_.Colours.Text, qgalLeftJustify});
    area.Top = below;
    canvas_.Text(area, cell->TooltipText(),
                 {state_.Settings.Font, state_.Colours.Text, qgalLeftJustify, true});
}

} // namespace quillgrid
