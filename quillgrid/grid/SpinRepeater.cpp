#include "quillgrid/grid/SpinRepeater.h"

#include <algorithm>
#include <array>

namespace quillgrid {

namespace {

/// Milliseconds before the next step; the last one stays.
constexpr std::array<std::int32_t, 4> Intervals{250, 200, 150, 100};

} // namespace

void SpinRepeater::Start(bool up) {
    Stop();
    cell_ = state_.Current;
    up_ = up;
    repeats_ = 0;
    if (Step(up)) Wait();
}

void SpinRepeater::Stop() {
    waiting_.Disconnect();
    cell_.reset();
}

void SpinRepeater::Forget(const Cell& cell) {
    if (cell_.lock().get() == &cell) Stop();
}

/// False when nothing is left to repeat: the value stands at its limit, or a handler took the cell or the
/// user away.
bool SpinRepeater::Step(bool up) {
    const auto cell = cell_.lock();
    if (!cell) return false;
    const Variant before = cell->Value();
    stepper_.Step(up ? U'+' : U'-');
    return cell_.lock() == cell && state_.IsCurrent(*cell) && !EqualAsText(before, cell->Value());
}

void SpinRepeater::Wait() {
    const std::int32_t interval = Intervals[std::min(repeats_++, Intervals.size() - 1)];
    waiting_ = clock_.After(interval, [this, control = state_.Self] {
        if (const auto held = control.lock()) Continue();
    });
}

void SpinRepeater::Continue() {
    const MouseButtons held = clock_.ButtonsDown();
    const auto cell = cell_.lock();
    if (state_.Terminated || state_.Left || !cell || !state_.IsCurrent(*cell)) return Stop();
    if (!held.Left && !held.Right) return Stop();
    if (Step(held.Left && up_)) return Wait();
    Forget(*cell);
}

} // namespace quillgrid
