#include "quillgrid/grid/PadCommands.h"

#include "quillgrid/calendar/QGCalendar.h"
#include "quillgrid/grid/Keys.h"
#include "quillgrid/pads/QGCalcpad.h"

namespace quillgrid {

bool RunPadCommand(QGCalendar& pad, std::int32_t keyCode, std::int32_t shift) {
    if (keyCode == KeyHome && shift == ShiftControl) {
        pad.PickToday();
    } else if (keyCode == KeyF10 && shift == ShiftNone) {
        pad.OpenMonths();
    } else if (keyCode == KeyF10 && shift == ShiftShift) {
        pad.OpenYears();
    } else {
        return false;
    }
    return true;
}

bool RunPadCommand(QGCalcpad& pad, std::int32_t keyCode, std::int32_t shift) {
    if (keyCode != KeyF9 || shift != ShiftNone) return false;
    pad.ChangeSign();
    return true;
}

} // namespace quillgrid
