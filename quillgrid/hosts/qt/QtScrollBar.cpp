#include "quillgrid/hosts/qt/QtScrollBar.h"

#include "quillgrid/hosts/qt/Conversions.h"

#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

namespace quillgrid::qt {

void QtScrollBar::SetRange(std::int32_t minimum, std::int32_t maximum, std::int32_t page) {
    const QSignalBlocker silence(&bar_);
    bar_.setRange(minimum, std::max(minimum, maximum));
    bar_.setPageStep(std::max(1, page));
    bar_.setSingleStep(1);
}

void QtScrollBar::SetValue(std::int32_t value) {
    const QSignalBlocker silence(&bar_);
    bar_.setValue(value);
}

void QtScrollBar::Place(const Rect& area) {
    area_ = area;
    FollowWidget();
    bar_.show();
}

void QtScrollBar::FollowWidget() {
    bar_.setGeometry(ToQRect(OnWidget(area_, owner_)));
}

void QtScrollBar::Hide() {
    bar_.hide();
}

} // namespace quillgrid::qt
