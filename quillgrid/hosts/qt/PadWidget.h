#pragma once

#include "quillgrid/hosts/qt/PreparedTexts.h"
#include "quillgrid/hosts/qt/QtClock.h"
#include "quillgrid/hosts/qt/QtSite.h"
#include "quillgrid/hosts/qt/QtSurface.h"
#include "quillgrid/hosts/qt/QtTextMetrics.h"
#include "quillgrid/hosts/qt/QtTheme.h"
#include "quillgrid/platform/Canvas.h"

#include <QPoint>
#include <QPointer>
#include <QWidget>

#include <optional>

namespace quillgrid::qt {

/// What the widgets of the three pads share: the ports, painting, and the mouse in the pad's own coordinates.
/// Keys come from the control, which keeps the focus.
class PadWidget : public QWidget {
public:
    /// The widget whose looks the pad has; null once that has gone.
    const QWidget* Owner() const { return owner_; }
    /// What stands for the pad: its own window, or the widget around it.
    QWidget& Face() { return parentWidget() ? *parentWidget() : *this; }
    /// Whether keys come here now.
    bool HasKeys() const;
    /// The widget around the pad got or lost the focus.
    void FollowFocus();
    /// A press and a release of the left button. May be the end of the pad.
    void Click(Point at);

protected:
    /// The looks are those of the control's widget.
    explicit PadWidget(const QWidget& owner);

    virtual void PaintPad(Canvas& canvas, const Rect& area) = 0;
    virtual void Pressed(Point point, Qt::MouseButton button) = 0;
    virtual void Moved(Point point, bool held) = 0;
    virtual void Released(Point point, Qt::MouseButton button) = 0;
    virtual void Left() {}
    /// Has assistive programs told what is different, when all is done.
    void TellSoon();

    QtSurface surface_;
    QtSite site_;
    QtTextMetrics metrics_;
    QtTheme theme_;
    QtClock clock_;

    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    void PaintInto(QPainter& painter, const QRect& area);

    QPointer<const QWidget> owner_;
    bool tells_ = false; ///< the telling is on its way

    PreparedTexts texts_;
    std::optional<QPoint> resting_; ///< where the pointer was when the pad opened under it
};

} // namespace quillgrid::qt
