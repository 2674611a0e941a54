#pragma once

#include "quillgrid/grid/GridState.h"
#include "quillgrid/grid/MouseController.h"
#include "quillgrid/grid/Navigator.h"
#include "quillgrid/grid/ValueStepper.h"

#include <cstdint>

namespace quillgrid {

/// Keys for what only the mouse could do otherwise: the boxes of the caption bar, the picture of a value, the
/// spin button where plus and minus are typed, and scrolling.
class PointerKeys {
public:
    PointerKeys(GridState& state, MouseController& mouse, ValueStepper& stepper, Navigator& navigator,
                GridEvents& events)
        : state_(state), mouse_(mouse), stepper_(stepper), navigator_(navigator), events_(events) {}

    /// False: the key means nothing here, or what it means is not there.
    bool KeyDown(std::int32_t keyCode, std::int32_t shift);

private:
    bool Step(char32_t direction);
    bool Scroll(std::int32_t rows);

    GridState& state_;
    MouseController& mouse_;
    ValueStepper& stepper_;
    Navigator& navigator_;
    GridEvents& events_;
};

} // namespace quillgrid
