#pragma once

#include "quillgrid/platform/Clock.h"

namespace quillgrid::headless {

/// Time that passes only when a test says so. It begins on 25 March 2026 at noon.
class FakeClock : public Clock {
public:
    DateTime Moment{*DayFromParts(2026, 3, 25), SecondsPerDay / 2};
    std::uint64_t Ticks = 1'000'000; ///< milliseconds

    DateTime Now() const override { return Moment; }
    std::uint64_t TickCount() const override { return Ticks; }
};

} // namespace quillgrid::headless
