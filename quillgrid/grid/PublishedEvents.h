#pragma once

#include "quillgrid/base/Constants.h"
#include "quillgrid/base/Event.h"

#include <cstdint>

namespace quillgrid {

class Cell;

/// The events of the control. The cell handed over is always the one concerned. A handler may change the
/// by-reference arguments, and it may do anything to the control, destroying it included.
struct PublishedEvents {
    /// Typed text was refused: the cell, the code of the refusal (changing it has no effect) and Cancel: set
    /// it to keep the user in the cell.
    Event<Cell&, ValidationErrConstants&, bool&> ValidateCellError;
    /// A new value was taken over; set Cancel to keep the user in the cell (the value stays). Not while
    /// Silent.
    Event<Cell&, bool&> ValidateCell;
    /// Another cell became the current one.
    Event<Cell&> SelChange;
    /// The user changed the value of the current cell. Only while the control has the focus and is not
    /// Silent.
    Event<Cell&> Change;
    /// A key was typed that the cell does not accept.
    Event<> Beep;
    /// KeyPress: the character on its way to the cell; 0 drops it. (Named apart from the method by which
    /// hosts hand keys in, as are the next two.)
    Event<Cell&, std::int16_t&> KeyPressed;
    /// KeyDown: key code and held modifiers; code 0 drops the key.
    Event<Cell&, std::int16_t&, std::int16_t&> KeyWentDown;
    /// KeyUp: key code and held modifiers.
    Event<Cell&, std::int16_t&, std::int16_t&> KeyWentUp;
    /// The user moved past the last or before the first cell and AllowWrap is false.
    Event<Cell&> LeaveFocus;
    /// The user pressed the image of a cell.
    Event<Cell&> ImageClick;
    /// The host must offer values for the cell; the point is where the cell's value ends below, in units of
    /// the container.
    Event<Cell&, float, float> DropDown;
    /// The control never raises these two.
    Event<Cell&> Click;
    Event<Cell&> DblClick;
    /// The close box of the caption bar was clicked.
    Event<> CloseBoxClick;
    /// The menu box of the caption bar was clicked; its bottom left corner in units of the container.
    Event<float, float> MenuClick;
};

} // namespace quillgrid
