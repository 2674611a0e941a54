#pragma once

#include "quillgrid/platform/PadWindow.h"

#include <QPoint>
#include <QRect>

#include <functional>

class QWidget;

namespace quillgrid::qt {

/// A pad's widget as a window of its own beside its control. It is of a kind that no window manager places or
/// decorates and that never takes the keyboard, and it belongs to the control's window.
class QtPadWindow : public PadWindow {
public:
    /// Both outlive this. The pad has no parent: a slot may delete the control while the pad handles an
    /// event.
    QtPadWindow(QWidget& pad, const QWidget& owner);

    void Detach(const Rect& value) override;
    Point ToScreen(Point onControl) const override;
    std::int32_t Width() const override;
    void ShowAt(Point corner) override;
    void BringToFront() override;
    bool IsShown() const override;
    void Hide() override;

    /// The window is made ready; it has gone.
    std::function<void()> Opens = [] {};
    std::function<void()> Closes = [] {};

    /// Where a window of a size stands that is wanted at a place: on the screen, above the value where there
    /// is no room below.
    static QPoint PlaceFor(QPoint wanted, QSize size, const QRect& value, const QRect& screen);

private:
    QWidget& pad_;
    const QWidget& owner_;
    QRect value_; ///< on the screen
};

} // namespace quillgrid::qt
