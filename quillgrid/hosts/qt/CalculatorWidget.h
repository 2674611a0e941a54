#pragma once

#include "quillgrid/base/Export.h"

#ifndef Q_MOC_RUN // moc cannot read the concepts of the standard headers
#include "quillgrid/pads/QGCalcpad.h"
#endif

#include <QWidget>

namespace quillgrid::qt {

class CalcPadWidget;

/// The pocket calculator by itself, in a layout or with `Qt::Popup` as a window that drops down. It follows
/// the widget's palette, locale, direction and enabled state; its size is fixed.
///
/// A slot may delete the widget, except while Qt gives it another look: Qt looks at it afterwards.
class QUILLGRID_EXPORT CalculatorWidget : public QWidget {
    Q_OBJECT

public:
    explicit CalculatorWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~CalculatorWidget() override;

    /// The calculator itself; lives as long as the widget. What is set there shows at its next `Refresh`.
    QGCalcpad& pad();
    const QGCalcpad& pad() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// A number was computed, or a mouse button was released: `pad().Value()` is what the display shows.
    void valueChange();
    /// The user is done: "=" or Enter on a result, or "C" on an empty entry.
    void closeUp();

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    void FollowLook();

    CalcPadWidget* pad_; ///< a child
};

} // namespace quillgrid::qt
