#pragma once

#include <cstdint>

namespace quillgrid {

class PadWindow;
class QGCalcpad;
class QGCalendar;
class QGInputList;

enum class PadKind : std::uint8_t { List, Date, Calc };

/// Where a control has its pads from. Each is made, hidden, when it or its window is first asked for, and
/// lives until the control has ended.
class PadFactory {
public:
    virtual ~PadFactory() = default;

    virtual QGInputList& Listpad() = 0;
    virtual QGCalendar& DatePad() = 0;
    virtual QGCalcpad& CalcPad() = 0;
    virtual PadWindow& Window(PadKind kind) = 0;
};

} // namespace quillgrid
