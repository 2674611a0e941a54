#pragma once

#include "quillgrid/platform/Clock.h"

namespace quillgrid::qt {

class QtClock : public Clock {
public:
    DateTime Now() const override;
    std::uint64_t TickCount() const override;
    Connection After(std::int32_t milliseconds, std::function<void()> call) override;
    MouseButtons ButtonsDown() const override;
};

} // namespace quillgrid::qt
