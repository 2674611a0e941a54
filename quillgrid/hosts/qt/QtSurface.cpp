#include "quillgrid/hosts/qt/QtSurface.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QApplication>
#include <QLayout>
#include <QWidget>

namespace quillgrid::qt {

namespace {

constexpr qint64 ShortestPause = 80; ///< milliseconds between two beeps

} // namespace

Size QtSurface::InnerSize() const {
    return {widget_.width(), widget_.height()};
}

// A layout decides for itself; asking it from within its own resizing would not end.
void QtSurface::Resize(Size size) {
    if (!widget_.parentWidget() || !widget_.parentWidget()->layout()) widget_.resize(size.Width, size.Height);
}

void QtSurface::Invalidate(const Rect& area) {
    if (area.IsEmpty()) return;
    const QRect shown = ToQRect(OnWidget(area, widget_));
    store_.MarkStale(shown);
    widget_.update(shown);
}

void QtSurface::SetPointer(MousePointer pointer) {
    switch (pointer) {
    case MousePointer::Busy: return widget_.setCursor(Qt::BusyCursor);
    case MousePointer::Hand: return widget_.setCursor(Qt::PointingHandCursor);
    case MousePointer::Default: return widget_.unsetCursor();
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
