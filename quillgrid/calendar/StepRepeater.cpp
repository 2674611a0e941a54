#include "quillgrid/calendar/StepRepeater.h"

#include <utility>

namespace quillgrid {

namespace {

constexpr std::int32_t FastAfter = 12; // steps

/// Milliseconds before the next step.
std::int32_t IntervalAfter(std::int32_t steps) {
    if (steps <= 1) return 250;
    return steps < FastAfter ? 125 : 1;
}

} // namespace

void StepRepeater::Start(Step step) {
    Stop();
    run_ = std::make_shared<Run>(Run{std::move(step)});
    Continue(std::shared_ptr<Run>(run_));
}

void StepRepeater::Stop() {
    waiting_.Disconnect();
    run_.reset();
}

void StepRepeater::Continue(const std::shared_ptr<Run>& run) {
    if (!run->Call()) return;
    if (run_ != run) return; // stopped meanwhile
    waiting_ = clock_.After(IntervalAfter(++run->Done), [this, run] {
        if (clock_.ButtonsDown().Left) Continue(run);
    });
}

} // namespace quillgrid
