#pragma once

#include "quillgrid/base/Export.h"
#include "quillgrid/platform/Clock.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace quillgrid {

/// Repeats a step for as long as the left mouse button is held, ever faster. Nothing waits in a loop: each
/// step is a call from the event loop.
class QUILLGRID_EXPORT StepRepeater {
public:
    /// False ends the repeating; so it must when the step has destroyed the repeater.
    using Step = std::function<bool()>;

    explicit StepRepeater(Clock& clock) : clock_(clock) {}

    /// Steps at once and begins to wait.
    void Start(Step step);
    void Stop();

private:
    struct Run {
        Step Call;
        std::int32_t Done = 0;
    };
    void Continue(const std::shared_ptr<Run>& run);

    Clock& clock_;
    std::shared_ptr<Run> run_;
    Connection waiting_;
};

} // namespace quillgrid
