#pragma once

#include "quillgrid/platform/ScrollBar.h"

class QScrollBar;
class QWidget;

namespace quillgrid::qt {

/// The port over a scroll bar of Qt. What the control sets raises no signal of the bar.
class QtScrollBar : public ScrollBar {
public:
    /// Both must outlive this. `owner` is the control's widget.
    QtScrollBar(QScrollBar& bar, const QWidget& owner) : bar_(bar), owner_(owner) {}

    void SetRange(std::int32_t minimum, std::int32_t maximum, std::int32_t page) override;
    void SetValue(std::int32_t value) override;
    /// The style greys the arrow of an end that is reached by itself.
    void EnableArrows(bool, bool) override {}
    void Place(const Rect& area) override;
    /// The same place in a widget of another width: a mirrored one counts from its right edge.
    void FollowWidget();
    void Hide() override;

private:
    QScrollBar& bar_;
    const QWidget& owner_;
    Rect area_;
};

} // namespace quillgrid::qt
