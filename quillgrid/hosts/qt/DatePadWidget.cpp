#include "quillgrid/hosts/qt/DatePadWidget.h"

#include "quillgrid/hosts/qt/QtLocale.h"

#include <QEvent>

namespace quillgrid::qt {

DatePadWidget::DatePadWidget(const QWidget& owner)
    : PadWidget(owner),
      menu_(*this),
      pad_({surface_, site_, metrics_, clock_, theme_, menu_, LocaleFromQt(owner.locale())}) {
    pad_.DateChange.Listen([this] { TellSoon(); });
    const Size size = pad_.RoomySize(); // later the pad makes itself as large as its font asks
    resize(size.Width, size.Height);
    pad_.Refresh();
}

void DatePadWidget::Report(std::function<void()> reported) {
    site_.Reported = [told = std::move(reported)](std::string_view) { told(); };
}

void DatePadWidget::changeEvent(QEvent* event) {
    PadWidget::changeEvent(event);
    if (event->type() == QEvent::LocaleChange) pad_.SetLocale(LocaleFromQt(locale()));
}

void DatePadWidget::hideEvent(QHideEvent* event) {
    PadWidget::hideEvent(event);
    pad_.Hidden();
}

} // namespace quillgrid::qt
