#pragma once

#include "quillgrid/base/DateTime.h"

#include <cstdint>

namespace quillgrid {

/// Time as the host has it. (One-shot timers and the state of the mouse buttons join it with the first
/// repeating button.)
class Clock {
public:
    virtual ~Clock() = default;

    /// Local date and time of day.
    virtual DateTime Now() const = 0;
    /// Milliseconds of a counter that never runs backwards.
    virtual std::uint64_t TickCount() const = 0;
};

} // namespace quillgrid
