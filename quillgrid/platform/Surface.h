#pragma once

#include "quillgrid/base/Rect.h"

#include <cstdint>
#include <string_view>

namespace quillgrid {

enum class MousePointer : std::uint8_t { Default, Busy };

/// The control's own window.
class Surface {
public:
    virtual ~Surface() = default;

    virtual Size InnerSize() const = 0;
    /// Asks for the area to be painted again, soon.
    virtual void Invalidate(const Rect& area) = 0;
    virtual bool HasFocus() const = 0;
    virtual void Focus() = 0;
    virtual void SetPointer(MousePointer pointer) = 0;
    virtual void SetTooltip(std::string_view text) = 0;
    /// The short sound that says: this key means nothing here.
    virtual void Beep() = 0;
};

} // namespace quillgrid
