#pragma once

#include "quillgrid/hosts/qt/PadWidget.h"
#include "quillgrid/pads/QGCalcpad.h"

namespace quillgrid::qt {

/// The calculator that a cell drops down.
class CalcPadWidget : public PadWidget {
public:
    explicit CalcPadWidget(const QWidget& owner);
    QGCalcpad& Pad() { return pad_; }

protected:
    void PaintPad(Canvas& canvas, const Rect& area) override { pad_.Paint(canvas, area); }
    void Pressed(Point point, Qt::MouseButton button) override {
        if (button == Qt::LeftButton) pad_.MouseDown(point);
    }
    void Moved(Point point, bool held) override { pad_.MouseMove(point, held); }
    void Released(Point, Qt::MouseButton button) override {
        if (button == Qt::LeftButton) pad_.MouseUp();
    }
    void Left() override { pad_.MouseLeave(); }

private:
    QGCalcpad pad_;
};

} // namespace quillgrid::qt
