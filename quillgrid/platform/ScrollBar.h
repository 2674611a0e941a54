#pragma once

#include "quillgrid/base/Rect.h"

#include <cstdint>

namespace quillgrid {

/// The vertical scroll bar beside the rows.
class ScrollBar {
public:
    virtual ~ScrollBar() = default;

    /// `minimum` to `maximum` inclusive; a page is the number of whole rows in view.
    virtual void SetRange(std::int32_t minimum, std::int32_t maximum, std::int32_t page) = 0;
    virtual void SetValue(std::int32_t value) = 0;
    /// Which arrows can still scroll.
    virtual void EnableArrows(bool up, bool down) = 0;
    /// Moves and shows the bar.
    virtual void Place(const Rect& area) = 0;
    virtual void Hide() = 0;
};

} // namespace quillgrid
