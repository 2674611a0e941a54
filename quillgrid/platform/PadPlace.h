#pragma once

#include "quillgrid/base/Rect.h"

namespace quillgrid {

/// Where the window of a pad stands.
class PadPlace {
public:
    virtual ~PadPlace() = default;

    /// The top left corner, in the coordinates of whatever the window stands in: its container, or the screen
    /// while it is dropped down.
    virtual void MoveTo(Point corner) = 0;
    virtual void Show() = 0;
};

} // namespace quillgrid
