#pragma once

#include "quillgrid/hosts/qt/BackingStore.h"
#include "quillgrid/platform/Surface.h"

#include <QElapsedTimer>

#include <functional>

class QWidget;

namespace quillgrid::qt {

class QtSurface : public Surface {
public:
    /// The widget must outlive the surface. `paint` paints the control over its background.
    QtSurface(QWidget& widget, BackingStore::Painting paint)
        : widget_(widget), store_(widget, std::move(paint)) {}

    Size InnerSize() const override;
    void Resize(Size size) override;
    void Invalidate(const Rect& area) override;
    bool HasFocus() const override { return IsEntered(); }
    void Focus() override { RequestFocus(); }
    void SetBackColour(Colour colour) override { background_ = colour; }
    Colour BackColour() const { return background_; }
    Canvas& Drawing() override { return store_; }
    void SetPointer(MousePointer pointer) override;
    void SetTooltip(std::string_view text) override;
    void Beep() override;

    /// Paints what the widget shows.
    void Show(QPainter& painter, const QRegion& exposed) { store_.Show(painter, exposed); }

    /// Whether the user is in the control, its edit box included.
    std::function<bool()> IsEntered = [] { return false; };
    /// Called for every wish for the focus; the host decides when it is granted.
    std::function<void()> RequestFocus = [] {};

private:
    QWidget& widget_;
    BackingStore store_;
    Colour background_ = ColourButtonFace;
    QElapsedTimer lastBeep_;
};

} // namespace quillgrid::qt
