#include "quillgrid/hosts/qt/AccessibleDay.h"

#include "quillgrid/hosts/qt/AccessibleCalendar.h"

namespace quillgrid::qt {

int AccessibleDay::columnIndex() const {
    return (Number() - AccessibleCalendar::FirstDay) % CalendarPadLayout::Columns;
}

int AccessibleDay::rowIndex() const {
    return (Number() - AccessibleCalendar::FirstDay) / CalendarPadLayout::Columns;
}

} // namespace quillgrid::qt
