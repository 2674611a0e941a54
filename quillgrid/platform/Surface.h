#pragma once

#include "quillgrid/base/Colour.h"
#include "quillgrid/base/Rect.h"

#include <cstdint>
#include <string_view>

namespace quillgrid {

class Canvas;

/// `Hand` says: a press does something here.
enum class MousePointer : std::uint8_t { Default, Busy, Hand };

/// The control's own window.
class Surface {
public:
    virtual ~Surface() = default;

    virtual Size InnerSize() const = 0;
    /// Asks the container for another size; it may refuse.
    virtual void Resize(Size size) = 0;
    /// Asks for the area to be painted again, soon.
    virtual void Invalidate(const Rect& area) = 0;
    /// The focus is in the window or in one of its children, the edit box for one.
    virtual bool HasFocus() const = 0;
    /// To the window itself, not to a child.
    virtual void Focus() = 0;
    /// What the window shows where nothing is painted.
    virtual void SetBackColour(Colour colour) = 0;
    /// For drawing at any moment, on top of what is painted; stays until that part is painted again.
    virtual Canvas& Drawing() = 0;
    virtual void SetPointer(MousePointer pointer) = 0;
    virtual void SetTooltip(std::string_view text) = 0;
    /// The short sound that says: this key means nothing here.
    virtual void Beep() = 0;
};

} // namespace quillgrid
