#pragma once

#include <cstdint>

namespace quillgrid {

/// The key codes that hosts hand in.
enum KeyCode : std::int32_t {
    KeyBackspace = 8,
    KeyTab = 9,
    KeyEnter = 13,
    KeyShift = 16,
    KeyControl = 17,
    KeyAlt = 18,
    KeyEscape = 27,
    KeySpace = 32,
    KeyPageUp = 33,
    KeyPageDown = 34,
    KeyEnd = 35,
    KeyHome = 36,
    KeyLeft = 37,
    KeyUp = 38,
    KeyRight = 39,
    KeyDown = 40,
    KeyInsert = 45,
    KeyDelete = 46,
    KeyV = 86,
    KeyF1 = 112,
    KeyF4 = 115,
    KeyF9 = 120,
    KeyF10 = 121,
    KeyF12 = 123,
};

/// Held modifiers, added up.
enum ShiftState : std::int32_t { ShiftNone = 0, ShiftShift = 1, ShiftControl = 2, ShiftAlt = 4 };

} // namespace quillgrid
