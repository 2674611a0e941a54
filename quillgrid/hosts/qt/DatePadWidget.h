#pragma once

#include "quillgrid/calendar/QGCalendar.h"
#include "quillgrid/hosts/qt/PadMenu.h"
#include "quillgrid/hosts/qt/PadWidget.h"

#include <functional>

namespace quillgrid::qt {

/// The calendar that a cell drops down.
class DatePadWidget : public PadWidget {
public:
    explicit DatePadWidget(const QWidget& owner);
    QGCalendar& Pad() { return pad_; }
    /// Who hears that a property was set.
    void Report(std::function<void()> reported);

protected:
    void PaintPad(Canvas& canvas, const Rect& area) override { pad_.Paint(canvas, area); }
    void Pressed(Point point, Qt::MouseButton button) override { pad_.MouseDown(point, ButtonOf(button)); }
    void Moved(Point point, bool) override { pad_.MouseMove(point); }
    void Released(Point point, Qt::MouseButton button) override {
        if (button == Qt::LeftButton) pad_.MouseUp(point);
    }
    void Left() override { pad_.MouseLeave(); }
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    static PadButton ButtonOf(Qt::MouseButton button) {
        switch (button) {
        case Qt::LeftButton: return PadButton::Left;
        case Qt::RightButton: return PadButton::Right;
        default: return PadButton::Other;
        }
    }

    PadMenu menu_;
    QGCalendar pad_;
};

} // namespace quillgrid::qt
