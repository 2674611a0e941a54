#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Rect.h"
#include "quillgrid/platform/Font.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace quillgrid {

/// The in-place text editor over the current cell. Positions and lengths count characters.
class EditBox {
public:
    struct Look {
        Font TextFont;
        Colour Ink = ColourWindowText;
        Colour Paper = ColourWindow;
        AlignmentConstants Alignment = qgalLeftJustify;
        std::string Mask; ///< one character shown for every one typed; empty shows the text
        bool ReadOnly = false;

        friend bool operator==(const Look&, const Look&) = default;
    };

    virtual ~EditBox() = default;

    virtual std::string Text() const = 0;
    /// Not less than the length of the text in characters; a host may know it without making the text.
    virtual std::size_t LengthAtMost() const { return Text().size(); }
    virtual void SetText(std::string_view text) = 0;
    virtual std::size_t SelectionStart() const = 0;
    virtual std::size_t SelectionLength() const = 0;
    virtual void Select(std::size_t start, std::size_t length) = 0;
    virtual void SetLook(const Look& look) = 0;
    /// Moves and shows the box.
    virtual void Place(const Rect& area) = 0;
    virtual void Hide() = 0;
    virtual void Focus() = 0;
};

} // namespace quillgrid
