#pragma once

#include "quillgrid/platform/Clock.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace quillgrid::headless {

/// Time that passes only when a test says so. It begins on 25 March 2026 at noon.
class FakeClock : public Clock {
public:
    DateTime Moment{*DayFromParts(2026, 3, 25), SecondsPerDay / 2};
    std::uint64_t Ticks = 1'000'000; ///< milliseconds
    MouseButtons Held;

    DateTime Now() const override { return Moment; }
    std::uint64_t TickCount() const override { return Ticks; }
    MouseButtons ButtonsDown() const override { return Held; }
    Connection After(std::int32_t milliseconds, std::function<void()> call) override;

    /// Lets time pass and makes the calls that fall due on the way, in their order.
    void Advance(std::int32_t milliseconds);
    std::size_t Waiting() const { return timers_->size(); }
    /// How many were ever set.
    std::uint64_t Started() const { return started_; }

private:
    struct Timer {
        std::uint64_t Due = 0;
        std::function<void()> Call;
    };
    using Timers = std::vector<std::shared_ptr<Timer>>;

    std::uint64_t started_ = 0;
    std::shared_ptr<Timers> timers_ = std::make_shared<Timers>();
};

} // namespace quillgrid::headless
