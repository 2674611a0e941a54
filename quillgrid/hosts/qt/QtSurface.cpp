#include "quillgrid/hosts/qt/QtSurface.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QApplication>
#include <QWidget>

namespace quillgrid::qt {

namespace {

constexpr qint64 ShortestPause = 80; ///< milliseconds between two beeps

} // namespace

Size QtSurface::InnerSize() const {
    return {widget_.width(), widget_.height()};
}

void QtSurface::Invalidate(const Rect& area) {
    if (area.IsEmpty()) return;
    store_.MarkStale(ToQRect(area));
    widget_.update(ToQRect(area));
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

// A pasted text may be refused character by character: one sound says it all.
void QtSurface::Beep() {
    if (lastBeep_.isValid() && lastBeep_.elapsed() < ShortestPause) return;
    lastBeep_.start();
    QApplication::beep();
}

} // namespace quillgrid::qt
