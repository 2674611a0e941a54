#include "quillgrid/grid/PointerKeys.h"

#include "quillgrid/grid/Keys.h"

namespace quillgrid {

namespace {

constexpr std::int32_t Chord(std::int32_t keyCode, std::int32_t shift) {
    return keyCode * 8 + shift;
}

} // namespace

bool PointerKeys::KeyDown(std::int32_t keyCode, std::int32_t shift) {
    if (keyCode < 1 || keyCode > KeyF12 || (shift & ~(ShiftShift | ShiftControl | ShiftAlt)) != 0)
        return false;
    switch (Chord(keyCode, shift)) {
    case Chord(KeyF10, ShiftNone): return mouse_.ClickMenuBox();
    case Chord(KeyF4, ShiftControl): return mouse_.ClickCloseBox();
    case Chord(KeyEnter, ShiftAlt): return mouse_.ClickImage();
    case Chord(KeyUp, ShiftShift): return Step(U'+');
    case Chord(quillgrid::KeyDown, ShiftShift): return Step(U'-');
    case Chord(KeyUp, ShiftControl): return Scroll(-1);
    case Chord(quillgrid::KeyDown, ShiftControl): return Scroll(1);
    default: return false;
    }
}

bool PointerKeys::Step(char32_t direction) {
    const auto cell = state_.Current;
    if (!cell || cell->Button() != qgbtSpin) return false;
    if (!stepper_.Step(direction)) events_.Beep();
    return true;
}

bool PointerKeys::Scroll(std::int32_t rows) {
    if (!state_.Current) return false;
    navigator_.ScrollTo(state_.FirstVisible + rows);
    return true;
}

} // namespace quillgrid
