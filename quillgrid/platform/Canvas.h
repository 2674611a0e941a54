#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/platform/Font.h"
#include "quillgrid/platform/Glyph.h"
#include "quillgrid/platform/ImageSource.h"

#include <cstdint>
#include <optional>
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

/// How a picture is drawn; what is left out is the drawing service's affair: the whole picture, what is taken
/// of it in its own size, copied.
struct PicturePlacement {
    Point Position{};
    std::optional<std::int32_t> Width{};
    std::optional<std::int32_t> Height{};
    std::optional<std::int32_t> SourceLeft{};
    std::optional<std::int32_t> SourceTop{};
    std::optional<std::int32_t> SourceWidth{};
    std::optional<std::int32_t> SourceHeight{};
    /// A ternary raster operation: 0x00CC0020 copy, 0x008800C6 and, 0x00EE0086 or, 0x00660046 exclusive or,
    /// 0x00330008 inverted copy.
    std::optional<std::int32_t> Operation{};
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
    virtual void PushButton(const Rect& area, ButtonLook look) = 0;
    /// Centred in `area`, pixels left over at the right and below; black in light palettes, green when
    /// pressed.
    virtual void DrawGlyph(const Rect& area, Glyph glyph, ButtonLook look) = 0;
    /// A line too long for `area` is shortened. Text never leaves `area`, but for a pixel or two of slanted
    /// letters and accents.
    virtual void Text(const Rect& area, std::string_view text, const TextStyle& style) = 0;
    virtual void Image(const Rect& area, const Picture& picture) = 0;
    virtual void PlacePicture(const Picture& picture, const PicturePlacement& placement) = 0;
    virtual void SetClip(const Rect& area) = 0;
    virtual void ClearClip() = 0;
};

} // namespace quillgrid
