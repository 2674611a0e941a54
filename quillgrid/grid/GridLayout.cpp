#include "quillgrid/grid/GridLayout.h"

#include <algorithm>

namespace quillgrid {

namespace {

constexpr std::int32_t FrameEdge = 2;
constexpr std::int32_t CellPaddingTop = 4;
constexpr std::int32_t GroupMarginWidth = 16;
constexpr std::int32_t CaptionPadding = 12;
constexpr std::int32_t CaptionGap = 4;
constexpr std::int32_t GroupCaptionIndent = 8;
constexpr std::int32_t GroupCaptionGap = 3;
constexpr std::int32_t TipsPadding = 8;
constexpr std::int32_t TipsLines = 4;
// Loaded settings may hold anything: beyond these no surface shows a difference, and sums cannot overflow.
constexpr std::int32_t MaxBorder = 999;
constexpr std::int32_t MaxBevel = 99;
constexpr std::int32_t MaxMeasure = 1'000'000;

std::int32_t EdgeOf(std::int32_t style) {
    return style == 0 ? 0 : FrameEdge;
}

Margins BevelMargin(const GridSettings& settings) {
    const std::int32_t width = std::clamp(settings.BevelWidth, 0, MaxBevel);
    Margins margin{width, width, width, width};
    switch (settings.BevelOuter) {
    case qgboPanelLeft:
    case qgboDialogLeft: margin.Right += 2; break;
    case qgboPanelRight: margin.Left += 2; break;
    case qgboDialogTop: margin.Bottom += 2; break;
    default: break;
    }
    return margin;
}

std::int32_t BorderMargin(const GridSettings& settings) {
    return std::clamp(settings.BorderWidth, 0, MaxBorder);
}

LayoutMeasures Limited(LayoutMeasures measures) {
    const auto limit = [](std::int32_t& value) { value = std::clamp(value, 0, MaxMeasure); };
    limit(measures.Surface.Width);
    limit(measures.Surface.Height);
    limit(measures.LabelHeight);
    limit(measures.CellHeight);
    limit(measures.CaptionHeight);
    limit(measures.WidestCaption);
    limit(measures.CaptionWidth);
    limit(measures.ScrollBarWidth);
    measures.RowCount = std::max(measures.RowCount, 0);
    return measures;
}

Margins StyleMargin(const GridSettings& settings, bool propertyList, bool labelsRight) {
    Margins margin = propertyList ? Margins{} : Margins{8, 8, 0, 8};
    if (settings.ShowGroupBox) (labelsRight ? margin.Right : margin.Left) = GroupMarginWidth;
    return margin;
}

void SetStyle(GridLayout& layout, const GridSettings& settings) {
    layout.PropertyList = settings.Style != qgstDefault;
    layout.LabelsRight = settings.Alignment >= qgalRightJustify;
    layout.TextInset = layout.PropertyList ? 1 : 2;
    layout.StyleMargin = StyleMargin(settings, layout.PropertyList, layout.LabelsRight);
    layout.OuterEdge = EdgeOf(settings.BevelOuter);
    layout.InnerEdge = EdgeOf(settings.BevelInner);
    layout.BorderEdge = EdgeOf(settings.BorderStyle);
}

void SetRowMeasures(GridLayout& layout, const LayoutMeasures& measures) {
    const std::int32_t text = std::max(measures.LabelHeight, measures.CellHeight);
    layout.RowHeight = text + CellPaddingTop + (layout.PropertyList ? 1 : 3);
    layout.RowPitch = layout.RowHeight + (layout.PropertyList ? 0 : 4);
    layout.RowCount = measures.RowCount;
}

bool HasCaptionBar(const GridSettings& settings) {
    return settings.ShowCaption && !settings.Caption.empty() && settings.BevelInner != qgbiGroupFrame;
}

/// The bar stands at the top of the frame; boxes are squares at its ends.
void SetCaptionBar(GridLayout& layout, const GridSettings& settings, std::int32_t barHeight) {
    if (!HasCaptionBar(settings)) return;
    const std::int32_t top = layout.InnerBevel.Top + layout.InnerEdge + CaptionGap;
    const Rect bar{layout.Frame.Left, top + layout.OuterEdge, layout.Frame.Right,
                   top + barHeight - 2 * CaptionGap};
    if (bar.IsEmpty()) return;
    layout.CaptionBar = bar;
    if (settings.ShowCloseBox) layout.CloseBox = {bar.Right - bar.Height(), bar.Top, bar.Right, bar.Bottom};
    if (settings.ShowMenuBox) layout.MenuBox = {bar.Left, bar.Top, bar.Left + bar.Height(), bar.Bottom};
}

/// A group frame has its caption in the middle of its upper edge's height, as far as the control has room.
void SetGroupCaption(GridLayout& layout, const GridSettings& settings, const LayoutMeasures& measures) {
    if (settings.BevelInner != qgbiGroupFrame || settings.Caption.empty()) return;
    const std::int32_t left = layout.InnerBevel.Left + GroupCaptionIndent;
    const std::int32_t right = std::min(left + measures.CaptionWidth + 2 * GroupCaptionGap,
                                        layout.InnerBevel.Right - GroupCaptionIndent);
    const std::int32_t top = std::max(layout.InnerBevel.Top + 1 - measures.CaptionHeight / 2, 0);
    layout.GroupCaption = {left, top, right, top + measures.CaptionHeight};
}

/// Returns the height that is left for the rows.
std::int32_t SetTips(GridLayout& layout, const GridSettings& settings, const LayoutMeasures& measures) {
    if (!settings.ShowTips) return measures.Surface.Height;
    const std::int32_t height = TipsLines * measures.CellHeight + TipsPadding;
    const std::int32_t inside = BorderMargin(settings) + layout.InnerEdge;
    layout.Tips = {layout.InnerBevel.Left + inside, layout.InnerBevel.Bottom - inside - height,
                   layout.InnerBevel.Right - inside, layout.InnerBevel.Bottom - inside};
    return measures.Surface.Height - height;
}

void SetFrames(GridLayout& layout, const GridSettings& settings, const LayoutMeasures& measures) {
    const Size size = measures.Surface;
    const Margins bevel = BevelMargin(settings);
    const std::int32_t inside = BorderMargin(settings) + layout.InnerEdge + layout.BorderEdge;
    const std::int32_t bar = HasCaptionBar(settings) ? measures.CaptionHeight + CaptionPadding : 0;
    const Margins& style = layout.StyleMargin;
    layout.Control = {0, 0, size.Width, size.Height};
    layout.InnerBevel = {bevel.Left, bevel.Top, size.Width - bevel.Right, size.Height - bevel.Bottom};
    const std::int32_t height = SetTips(layout, settings, measures);
    layout.Content = {bevel.Left + style.Left + inside, bevel.Top + style.Top + inside + bar,
                      size.Width - bevel.Right - style.Right - inside,
                      height - bevel.Bottom - style.Bottom - inside};
    layout.Frame = {layout.Content.Left - style.Left - layout.BorderEdge,
                    layout.Content.Top - style.Top - layout.BorderEdge,
                    layout.Content.Right + style.Right + layout.BorderEdge,
                    layout.Content.Bottom + style.Bottom + layout.BorderEdge};
    SetCaptionBar(layout, settings, bar);
    SetGroupCaption(layout, settings, measures);
}

void SetGroupMargin(GridLayout& layout, const GridSettings& settings) {
    if (!settings.ShowGroupBox) return;
    const Rect& content = layout.Content;
    const Margins& style = layout.StyleMargin;
    layout.GroupMargin =
        layout.LabelsRight ? Rect{content.Right, content.Top, content.Right + style.Right - 1, content.Bottom}
                           : Rect{content.Left - style.Left, content.Top, content.Left - 1, content.Bottom};
}

/// A bar narrows the content. Where the group margin stands on its side it stays outermost.
void SetScrolling(GridLayout& layout, std::int32_t barWidth) {
    layout.VisibleRows = std::max(layout.Content.Height(), 0) / layout.RowPitch;
    if (layout.VisibleRows >= layout.RowCount || layout.RowCount < 2) {
        layout.ScrollMaximum = std::max(layout.RowCount, 1);
        return;
    }
    layout.ScrollMaximum = layout.RowCount - std::max(layout.VisibleRows, 1) + 1;
    const std::int32_t top = layout.Content.Top - layout.StyleMargin.Top;
    const std::int32_t height =
        layout.Content.Height() - layout.InnerEdge + layout.StyleMargin.Top + layout.StyleMargin.Bottom;
    const bool besideMargin = layout.LabelsRight && !layout.GroupMargin.IsEmpty();
    const std::int32_t left = layout.Content.Right - barWidth + (besideMargin ? layout.StyleMargin.Right : 0);
    layout.Content.Right -= barWidth;
    if (besideMargin) layout.GroupMargin = layout.GroupMargin.Moved(-barWidth, 0);
    layout.ScrollBar = {left, top, left + barWidth + 1, top + std::max(height, 0)};
}

void SetColumns(GridLayout& layout, std::int32_t labelWidth) {
    const std::int32_t labels = labelWidth + 2 * layout.TextInset + 4;
    const std::int32_t values = std::max(layout.Content.Width() - labels - 1, 0);
    layout.Labels = {layout.Content.Left + (layout.LabelsRight ? values : 0), labels};
    layout.Values = {layout.Content.Left + (layout.LabelsRight ? 0 : labels), values};
}

Rect Place(const GridLayout& layout, std::int32_t place, std::int32_t left, std::int32_t right) {
    const std::int32_t top = layout.Content.Top + place * layout.RowPitch;
    return {left, top, right, top + layout.RowHeight};
}

std::string Line(const char* name, const Rect& rect) {
    return std::string(name) + " " + std::to_string(rect.Left) + "," + std::to_string(rect.Top) + " - " +
           std::to_string(rect.Right) + "," + std::to_string(rect.Bottom) + "\n";
}

std::string Line(const char* name, const ColumnSpan& span) {
    return std::string(name) + " " + std::to_string(span.Left) + " + " + std::to_string(span.Width) + "\n";
}

std::string Line(const char* name, std::int32_t value) {
    return std::string(name) + " " + std::to_string(value) + "\n";
}

} // namespace

Rect GridLayout::RowArea(std::int32_t place) const {
    const bool valuesFirst = Values.Left < Labels.Left;
    return Place(*this, place, valuesFirst ? Values.Left : Labels.Left,
                 valuesFirst ? Labels.Right() : Values.Right());
}

Rect GridLayout::LabelArea(std::int32_t place) const {
    return Place(*this, place, Labels.Left, Labels.Right());
}

Rect GridLayout::ValueArea(std::int32_t place) const {
    return Place(*this, place, Values.Left, Values.Right());
}

Rect GridLayout::GroupArea(std::int32_t place) const {
    return Place(*this, place, GroupMargin.Left, GroupMargin.Right);
}

Rect GridLayout::ButtonArea(const Rect& value) const {
    return {std::max(value.Right - ButtonWidth, value.Left), value.Top, value.Right, value.Bottom};
}

std::string GridLayout::DumpText() const {
    std::string text = Line("inner bevel", InnerBevel) + Line("frame", Frame) + Line("content", Content) +
                       Line("labels", Labels) + Line("values", Values) + Line("row height", RowHeight) +
                       Line("row pitch", RowPitch) + Line("visible rows", VisibleRows) +
                       (ScrollBarShown() ? Line("scroll bar", ScrollBar) : "no scroll bar\n") +
                       Line("scroll maximum", ScrollMaximum);
    const auto add = [&text](const char* name, const Rect& rect) {
        if (!rect.IsEmpty()) text += Line(name, rect);
    };
    add("caption bar", CaptionBar);
    add("close box", CloseBox);
    add("menu box", MenuBox);
    add("tips", Tips);
    add("group margin", GroupMargin);
    add("group caption", GroupCaption);
    return text;
}

GridLayout Layout(const GridSettings& settings, const LayoutMeasures& given) {
    const LayoutMeasures measures = Limited(given);
    GridLayout layout;
    SetStyle(layout, settings);
    SetRowMeasures(layout, measures);
    SetFrames(layout, settings, measures);
    SetGroupMargin(layout, settings);
    layout.TipsTitleHeight = measures.LabelHeight;
    layout.ButtonWidth = measures.ScrollBarWidth;
    SetScrolling(layout, measures.ScrollBarWidth);
    const std::int32_t fixedWidth = std::clamp(settings.LabelWidth, 0, MaxMeasure);
    SetColumns(layout, fixedWidth == 0 ? measures.WidestCaption : fixedWidth);
    return layout;
}

Size MinimumSizeOf(const GridSettings& settings) {
    const std::int32_t frame = 2 * (std::clamp(settings.BevelWidth, 0, MaxBevel) + BorderMargin(settings));
    return {frame + 80, frame + 20};
}

} // namespace quillgrid
