#pragma once

#include "quillgrid/base/Rect.h"
#include "quillgrid/grid/GridSettings.h"

#include <cstdint>
#include <string>

namespace quillgrid {

/// Four side widths.
struct Margins {
    std::int32_t Left = 0;
    std::int32_t Top = 0;
    std::int32_t Right = 0;
    std::int32_t Bottom = 0;

    friend bool operator==(const Margins&, const Margins&) = default;
};

/// Left edge and width of the labels' or the values' side of the rows.
struct ColumnSpan {
    std::int32_t Left = 0;
    std::int32_t Width = 0;

    std::int32_t Right() const { return Left + Width; }
    friend bool operator==(const ColumnSpan&, const ColumnSpan&) = default;
};

/// What the geometry depends on besides the settings.
struct LayoutMeasures {
    Size Surface;
    std::int32_t RowCount = 0;
    std::int32_t LabelHeight = 0;   ///< line height of Font
    std::int32_t CellHeight = 0;    ///< line height of CellFont
    std::int32_t CaptionHeight = 0; ///< line height of CaptionFont
    std::int32_t WidestCaption = 0;
    std::int32_t CaptionWidth = 0; ///< of `Caption` in CaptionFont; only a group frame needs it
    std::int32_t ScrollBarWidth = 14;
};

/// Where everything stands: a plain value, computed by Layout and read by painting, editing and the mouse.
/// Rows are addressed by their place in view (0 is the first visible one), so that scrolling changes nothing
/// here.
struct GridLayout {
    bool PropertyList = true; ///< Style 1
    bool LabelsRight = false; ///< Alignment 1
    Rect Control;
    Rect InnerBevel;
    Rect Frame;
    Rect Content;
    Rect ScrollBar;  ///< empty while hidden
    Rect CaptionBar; ///< these four are empty while not shown
    Rect CloseBox;
    Rect MenuBox;
    Rect Tips;
    Rect GroupCaption; ///< the caption within the upper edge of a group frame
    Rect GroupMargin;  ///< beside the rows, where headings show whether they are expanded; empty while not
                       ///< shown
    Margins StyleMargin;
    ColumnSpan Labels;
    ColumnSpan Values;
    std::int32_t TextInset = 1;
    std::int32_t OuterEdge = 0;
    std::int32_t InnerEdge = 0;
    std::int32_t BorderEdge = 0;
    std::int32_t RowHeight = 0;
    std::int32_t RowPitch = 1;
    std::int32_t RowCount = 0;
    std::int32_t VisibleRows = 0;
    std::int32_t ScrollMaximum = 1;
    std::int32_t TipsTitleHeight = 0;
    std::int32_t ButtonWidth = 14; ///< of the button strip at the right of a value

    bool CaptionShown() const { return !CaptionBar.IsEmpty(); }
    bool ScrollBarShown() const { return !ScrollBar.IsEmpty(); }
    /// Label and value side of the row at a place in view.
    Rect RowArea(std::int32_t place) const;
    Rect LabelArea(std::int32_t place) const;
    Rect ValueArea(std::int32_t place) const;
    /// The part of the group margin beside the row.
    Rect GroupArea(std::int32_t place) const;
    /// The button strip of a value at the given place.
    Rect ButtonArea(const Rect& value) const;

    /// One line a rectangle or measure.
    std::string DumpText() const;

    friend bool operator==(const GridLayout&, const GridLayout&) = default;
};

GridLayout Layout(const GridSettings& settings, const LayoutMeasures& measures);
/// The smallest size at which the control keeps its shape.
Size MinimumSizeOf(const GridSettings& settings);

} // namespace quillgrid
