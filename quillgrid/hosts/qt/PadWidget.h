#pragma once

#include "quillgrid/hosts/qt/PreparedTexts.h"
#include "quillgrid/hosts/qt/QtClock.h"
#include "quillgrid/hosts/qt/QtSite.h"
#include "quillgrid/hosts/qt/QtSurface.h"
#include "quillgrid/hosts/qt/QtTextMetrics.h"
#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/platform/Canvas.h"

#include <QPoint>
#include <QWidget>

#include <optional>

namespace quillgrid::qt {

/// What the widgets of the three pads share: the ports, painting, and the mouse in the pad's own coordinates.
/// Keys come from the control, which keeps the focus.
class PadWidget : public QWidget {
protected:
    /// The looks are those of the control's widget.
    explicit PadWidget(const QWidget& owner);

    virtual void PaintPad(Canvas& canvas, const Rect& area) = 0;
    virtual void Pressed(Point point, Qt::MouseButton button) = 0;
    virtual void Moved(Point point, bool held) = 0;
    virtual void Released(Point point) = 0;
    virtual void Left() {}

    QtSurface surface_;
    QtSite site_;
    QtTextMetrics metrics_;
    QtTheme theme_;
    QtClock clock_;

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void PaintInto(QPainter& painter, const QRect& area);

    PreparedTexts texts_;
    std::optional<QPoint> resting_; ///< where the pointer was when the pad opened under it
};

} // namespace quillgrid::qt
