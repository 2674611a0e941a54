#include "quillgrid/grid/PadKeys.h"

#include "quillgrid/calendar/QGCalendar.h"
#include "quillgrid/grid/Keys.h"
#include "quillgrid/grid/PadCommands.h"
#include "quillgrid/pads/QGCalcpad.h"
#include "quillgrid/pads/QGInputList.h"

namespace quillgrid {

namespace {

bool MakesCharacter(std::int32_t keyCode, std::int32_t shift) {
    if ((shift & (ShiftControl | ShiftAlt)) != 0) return false;
    switch (keyCode) {
    case KeyTab:
    case KeyInsert:
    case KeyDelete: return false;
    default: break;
    }
    const bool movesOrShifts =
        (keyCode >= KeyShift && keyCode <= KeyAlt) || (keyCode >= KeyPageUp && keyCode <= quillgrid::KeyDown);
    return !movesOrShifts && (keyCode < KeyF1 || keyCode > KeyF12);
}

} // namespace

bool PadKeys::KeyDown(std::int32_t keyCode, std::int32_t shift) {
    if (keyCode == KeyF4 || !pads_.Shown()) {
        pads_.Hide(); // what the host has dropped down keeps only this key back
        return true;
    }
    Pass(keyCode, shift);
    return !MakesCharacter(keyCode, shift);
}

void PadKeys::Pass(std::int32_t keyCode, std::int32_t shift) {
    PadFactory& pads = pads_.Factory();
    switch (*pads_.Shown()) {
    case PadKind::List: return pads.Listpad().KeyDown(keyCode, shift);
    case PadKind::Date:
        if (!RunPadCommand(pads.DatePad(), keyCode, shift)) pads.DatePad().KeyDown(keyCode, shift);
        return;
    case PadKind::Calc:
        if (!RunPadCommand(pads.CalcPad(), keyCode, shift)) pads.CalcPad().KeyDown(keyCode, shift);
        return;
    }
}

void PadKeys::KeyPress(char32_t character) {
    auto code = static_cast<std::int32_t>(character);
    const auto shown = pads_.Shown();
    if (!shown) return pads_.Hide();
    switch (*shown) {
    case PadKind::List: return list_.KeyPress(code);
    case PadKind::Date: return date_.KeyPress(code);
    case PadKind::Calc: return pads_.Factory().CalcPad().KeyPress(code);
    }
}

void PadKeys::KeyUp(std::int32_t keyCode, std::int32_t shift) {
    if (pads_.IsShown(PadKind::List)) pads_.Factory().Listpad().KeyUp(keyCode, shift);
    if (pads_.IsShown(PadKind::Calc)) pads_.Factory().CalcPad().KeyUp(keyCode, shift);
}

} // namespace quillgrid
