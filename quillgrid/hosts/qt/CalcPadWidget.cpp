#include "quillgrid/hosts/qt/CalcPadWidget.h"

#include "quillgrid/hosts/qt/QtLocale.h"

namespace quillgrid::qt {

CalcPadWidget::CalcPadWidget(const QWidget& owner)
    : PadWidget(owner), pad_({surface_, site_, metrics_, LocaleFromQt(owner.locale())}) {
    pad_.DisplayChange.Listen([this] { TellSoon(); });
}

} // namespace quillgrid::qt
