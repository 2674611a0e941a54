#pragma once

#include "quillgrid/platform/Clock.h"

namespace quillgrid::qt {

class QtClock : public Clock {
public:
    DateTime Now() const override;
    std::uint64_t TickCount() const override;
};

} // namespace quillgrid::qt
