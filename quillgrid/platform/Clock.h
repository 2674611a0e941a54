#pragma once

#include "quillgrid/base/DateTime.h"
#include "quillgrid/base/Event.h"

#include <cstdint>
#include <functional>

namespace quillgrid {

/// The mouse buttons that are down.
struct MouseButtons {
    bool Left = false;
    bool Right = false;
};

/// Time as the host has it, and what the user holds down while it passes.
class Clock {
public:
    virtual ~Clock() = default;

    /// Local date and time of day.
    virtual DateTime Now() const = 0;
    /// Milliseconds of a counter that never runs backwards.
    virtual std::uint64_t TickCount() const = 0;
    /// Calls once, in so many milliseconds, from the event loop. Ending the connection calls it off; the call
    /// itself may do so.
    [[nodiscard]] virtual Connection After(std::int32_t milliseconds, std::function<void()> call) = 0;
    virtual MouseButtons ButtonsDown() const = 0;
};

} // namespace quillgrid
