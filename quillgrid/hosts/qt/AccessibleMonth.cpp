#include "quillgrid/hosts/qt/AccessibleMonth.h"

#include "quillgrid/hosts/qt/AccessibleCalendar.h"

namespace quillgrid::qt {

AccessibleCalendar* AccessibleMonth::Calendar() const {
    return dynamic_cast<AccessibleCalendar*>(Pad());
}

void* AccessibleMonth::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return AccessiblePart::interface_cast(type);
}

int AccessibleMonth::columnCount() const {
    return childCount() > 0 ? CalendarPadLayout::Columns : 0;
}

int AccessibleMonth::rowCount() const {
    return childCount() > 0 ? CalendarPadLayout::Weeks : 0;
}

QAccessibleInterface* AccessibleMonth::cellAt(int row, int column) const {
    const bool inside = row >= 0 && row < rowCount() && column >= 0 && column < columnCount();
    return child(inside ? row * CalendarPadLayout::Columns + column : -1);
}

QList<QAccessibleInterface*> AccessibleMonth::selectedCells() const {
    const int current = isValid() ? Calendar()->Current() : 0;
    return current > 0 ? QList{Calendar()->PartAt(current)} : QList<QAccessibleInterface*>();
}

QString AccessibleMonth::columnDescription(int column) const {
    return isValid() ? Calendar()->DayName(column) : QString();
}

QString AccessibleMonth::rowDescription(int row) const {
    return isValid() ? Calendar()->WeekName(row) : QString();
}

} // namespace quillgrid::qt
