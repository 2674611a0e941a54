#pragma once

#include "quillgrid/base/Rect.h"

#include <cstdint>

namespace quillgrid {

/// The window of a pad that drops down from a control. It never takes the keyboard focus.
class PadWindow {
public:
    virtual ~PadWindow() = default;

    /// Makes the hidden window a top-level one above the control, for a value at a place of the control's
    /// surface: what of the window would leave the screen is to be moved, but not over the value.
    virtual void Detach(const Rect& value) = 0;
    /// Where on the screen a place of the control's surface is.
    virtual Point ToScreen(Point onControl) const = 0;
    virtual std::int32_t Width() const = 0;
    /// Shows the window with its top left corner at a place of the screen.
    virtual void ShowAt(Point corner) = 0;
    /// For a pad that has shown itself.
    virtual void BringToFront() = 0;
    virtual bool IsShown() const = 0;
    /// Hides the window and gives it back to the control.
    virtual void Hide() = 0;
};

} // namespace quillgrid
