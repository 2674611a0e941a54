#pragma once

#include "quillgrid/platform/Surface.h"

#include <QElapsedTimer>

#include <functional>

class QWidget;

namespace quillgrid::qt {

class QtSurface : public Surface {
public:
    /// The widget must outlive the surface.
    explicit QtSurface(QWidget& widget) : widget_(widget) {}

    Size InnerSize() const override;
    void Invalidate(const Rect& area) override;
    bool HasFocus() const override { return IsEntered(); }
    void Focus() override { RequestFocus(); }
    void SetPointer(MousePointer pointer) override;
    void SetTooltip(std::string_view text) override;
    void Beep() override;

    /// Whether the user is in the control, its edit box included.
    std::function<bool()> IsEntered = [] { return false; };
    /// Called for every wish for the focus; the host decides when it is granted.
    std::function<void()> RequestFocus = [] {};

private:
    QWidget& widget_;
    QElapsedTimer lastBeep_;
};

} // namespace quillgrid::qt
