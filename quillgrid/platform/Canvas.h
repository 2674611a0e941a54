#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/platform/Font.h"
#include "quillgrid/platform/ImageSource.h"

#include <cstdint>
#include <string_view>

namespace quillgrid {

/// The edges of the classic window look.
enum class EdgeKind : std::uint8_t { Flat, Sunken, Raised, SunkenOuter, RaisedInner, Etched };

struct TextStyle {
    Font TextFont;
    Colour Ink = ColourWindowText;
    AlignmentConstants Alignment = qgalLeftJustify;
    bool WordWrap = false; ///< one vertically centred line otherwise
};

/// What the control draws on. Logical pixels, origin at the top left of the control's surface; colours may be
/// system colours, which the host resolves.
class Canvas {
public:
    virtual ~Canvas() = default;

    virtual void Fill(const Rect& area, Colour colour) = 0;
    /// One pixel wide, from the first point up to, but not including, the second; horizontal or vertical.
    virtual void Line(Point from, Point to, Colour colour) = 0;
    virtual void Edge(const Rect& area, EdgeKind kind) = 0;
    virtual void PushButton(const Rect& area, bool pressed) = 0;
    /// Text never leaves `area`.
    virtual void Text(const Rect& area, std::string_view text, const TextStyle& style) = 0;
    virtual void Image(const Rect& area, const Picture& picture) = 0;
    virtual void SetClip(const Rect& area) = 0;
    virtual void ClearClip() = 0;
};

} // namespace quillgrid
