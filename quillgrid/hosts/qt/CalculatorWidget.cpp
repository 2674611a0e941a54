#include "quillgrid/hosts/qt/CalculatorWidget.h"

#include "quillgrid/grid/PadCommands.h"
#include "quillgrid/hosts/qt/CalcPadWidget.h"
#include "quillgrid/hosts/qt/KeyTranslation.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QPointer>

namespace quillgrid::qt {

namespace {

/// 0 for a key that types nothing.
std::int32_t CharacterOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return: return 13;
    case Qt::Key_Escape: return 27;
    case Qt::Key_Backspace: return 8;
    default: return IsTyping(event) && !event.text().isEmpty() ? event.text().front().unicode() : 0;
    }
}

bool IsFunctionKey(std::int32_t keyCode) {
    return keyCode >= 116 && keyCode <= 120; // F5 to F8, and F9 for the sign
}

} // namespace

CalculatorWidget::CalculatorWidget(QWidget* parent, Qt::WindowFlags flags)
    : QWidget(parent, flags), pad_(new CalcPadWidget(*this)) {
    pad_->setParent(this);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    pad().ValueChange.Listen([this] { Q_EMIT valueChange(); });
    pad().CloseUp.Listen([this] { Q_EMIT closeUp(); });
    pad().Refresh();
    resize(sizeHint());
}

CalculatorWidget::~CalculatorWidget() = default;

QGCalcpad& CalculatorWidget::pad() {
    return pad_->Pad();
}

const QGCalcpad& CalculatorWidget::pad() const {
    return pad_->Pad();
}

QSize CalculatorWidget::sizeHint() const {
    return pad_->size();
}

void CalculatorWidget::FollowLook() {
    pad_->setFont(font());
    pad_->setPalette(palette());
    pad_->setLayoutDirection(layoutDirection());
    pad_->setLocale(locale());
    pad().Refresh();
}

void CalculatorWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::LocaleChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::StyleChange: return FollowLook();
    default: return;
    }
}

/// Keys of the calculator are not shortcuts of its window, while it has the focus.
bool CalculatorWidget::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto& key = *static_cast<QKeyEvent*>(event);
        if (IsFunctionKey(KeyCodeOf(key)) || CharacterOf(key) != 0) key.accept();
    }
    return QWidget::event(event);
}

void CalculatorWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    pad_->FollowFocus();
}

void CalculatorWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    pad_->FollowFocus();
}

void CalculatorWidget::keyPressEvent(QKeyEvent* event) {
    std::int32_t code = KeyCodeOf(*event);
    std::int32_t character = CharacterOf(*event);
    if (!IsFunctionKey(code) && character == 0) return QWidget::keyPressEvent(event);
    event->accept();
    const QPointer<CalculatorWidget> alive(this);
    if (RunPadCommand(pad(), code, ShiftStateOf(*event))) return;
    pad().KeyDown(code, ShiftStateOf(*event));
    if (alive && code != 0 && character != 0) pad().KeyPress(character);
}

void CalculatorWidget::keyReleaseEvent(QKeyEvent* event) {
    if (event->isAutoRepeat()) return event->accept();
    pad().KeyUp(KeyCodeOf(*event), ShiftStateOf(*event));
    QWidget::keyReleaseEvent(event);
}

} // namespace quillgrid::qt
