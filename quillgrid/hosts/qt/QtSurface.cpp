#include "quillgrid/hosts/qt/QtSurface.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QApplication>
#include <QWidget>

namespace quillgrid::qt {

Size QtSurface::InnerSize() const {
    return {widget_.width(), widget_.height()};
}

void QtSurface::Invalidate(const Rect& area) {
    if (!area.IsEmpty()) widget_.update(ToQRect(area));
}

void QtSurface::SetPointer(MousePointer pointer) {
    if (pointer == MousePointer::Busy) {
        widget_.setCursor(Qt::BusyCursor);
    } else {
        widget_.unsetCursor();
    }
}

void QtSurface::SetTooltip(std::string_view text) {
    widget_.setToolTip(ToQString(text));
}

void QtSurface::Beep() {
    QApplication::beep();
}

} // namespace quillgrid::qt
