#pragma once

#include "quillgrid/platform/ScrollBar.h"

class QScrollBar;

namespace quillgrid::qt {

/// The port over a scroll bar of Qt. What the control sets raises no signal of the bar.
class QtScrollBar : public ScrollBar {
public:
    /// The bar must outlive this.
    explicit QtScrollBar(QScrollBar& bar) : bar_(bar) {}

    void SetRange(std::int32_t minimum, std::int32_t maximum, std::int32_t page) override;
    void SetValue(std::int32_t value) override;
    /// The style greys the arrow of an end that is reached by itself.
    void EnableArrows(bool, bool) override {}
    void Place(const Rect& area) override;
    void Hide() override;

private:
    QScrollBar& bar_;
};

} // namespace quillgrid::qt
