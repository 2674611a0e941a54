#include "quillgrid/hosts/qt/ListPadWidget.h"

#include "quillgrid/hosts/qt/QtLocale.h"

#include <QApplication>
#include <QWheelEvent>

#include <algorithm>

namespace quillgrid::qt {

ListPadWidget::ListPadWidget(const QWidget& owner)
    : PadWidget(owner),
      bar_(Qt::Vertical, this),
      scroll_(bar_, *this),
      pad_({surface_, *this, scroll_, site_, metrics_, clock_, theme_, LocaleFromQt(owner.locale())}) {
    bar_.setFocusPolicy(Qt::NoFocus);
    pad_.ValueChange.Listen([this] { TellSoon(); });
    connect(&bar_, &QScrollBar::valueChanged, this, [this](int value) { pad_.ScrollTo(value); });
}

void ListPadWidget::wheelEvent(QWheelEvent* event) {
    event->accept();
    const int rows = wheel_.Rows(event->angleDelta().y(), std::max(1, QApplication::wheelScrollLines()));
    if (rows != 0) pad_.MouseWheel(rows);
}

} // namespace quillgrid::qt
