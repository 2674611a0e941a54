#pragma once

#include "quillgrid/hosts/qt/PadWidget.h"
#include "quillgrid/hosts/qt/QtScrollBar.h"
#include "quillgrid/hosts/qt/WheelSteps.h"
#include "quillgrid/pads/QGInputList.h"
#include "quillgrid/platform/PadPlace.h"

#include <QScrollBar>

namespace quillgrid::qt {

/// The list that a cell drops down.
class ListPadWidget : public PadWidget, private PadPlace {
public:
    explicit ListPadWidget(const QWidget& owner);
    QGInputList& Pad() { return pad_; }

protected:
    void PaintPad(Canvas& canvas, const Rect& area) override { pad_.Paint(canvas, area); }
    void Pressed(Point point, Qt::MouseButton) override { pad_.MouseDown(point); }
    void Moved(Point point, bool held) override { pad_.MouseMove(point, held); }
    void Released(Point, Qt::MouseButton) override { pad_.MouseUp(); }
    void wheelEvent(QWheelEvent* event) override;

private:
    void MoveTo(Point corner) override { move(corner.X, corner.Y); }
    void Show() override { show(); }

    QScrollBar bar_;
    QtScrollBar scroll_;
    WheelSteps wheel_;
    QGInputList pad_;
};

} // namespace quillgrid::qt
