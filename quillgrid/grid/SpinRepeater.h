#pragma once

#include "quillgrid/base/Event.h"
#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/ValueStepper.h"
#include "quillgrid/platform/Clock.h"

#include <memory>

namespace quillgrid {

/// Steps a value for as long as a mouse button is held on its spin button: at once, then at ever shorter
/// intervals.
class SpinRepeater {
public:
    SpinRepeater(GridState& state, ValueStepper& stepper, Clock& clock)
        : state_(state), stepper_(stepper), clock_(clock) {}

    /// The left button went down on the upper (`up`) or lower half of the current cell's button.
    void Start(bool up);
    void Stop();
    /// The cell goes: nothing waits for it any more.
    void Forget(const Cell& cell);

private:
    bool Step(bool up);
    void Wait();
    void Continue();

    GridState& state_;
    ValueStepper& stepper_;
    Clock& clock_;
    Connection waiting_;
    std::weak_ptr<Cell> cell_;
    std::size_t repeats_ = 0;
    bool up_ = false;
};

} // namespace quillgrid
