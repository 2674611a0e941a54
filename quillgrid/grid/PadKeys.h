#pragma once

#include "quillgrid/grid/DateDropDown.h"
#include "quillgrid/grid/ListDropDown.h"
#include "quillgrid/grid/OpenPads.h"

#include <cstdint>

namespace quillgrid {

/// Keys that go to an open pad instead of the edit box, which keeps the focus.
class PadKeys {
public:
    PadKeys(OpenPads& pads, ListDropDown& list, DateDropDown& date) : pads_(pads), list_(list), date_(date) {}

    /// Whether keys are for a pad, or are dropped because the host has something open.
    bool TakeKeys() const { return pads_.IsOpen(); }
    /// False: the character of the key is still to come.
    bool KeyDown(std::int32_t keyCode, std::int32_t shift);
    void KeyPress(char32_t character);
    void KeyUp(std::int32_t keyCode, std::int32_t shift);

private:
    void Pass(std::int32_t keyCode, std::int32_t shift);

    OpenPads& pads_;
    ListDropDown& list_;
    DateDropDown& date_;
};

} // namespace quillgrid
