#include "quillgrid/hosts/qt/CalendarWidget.h"

#include "quillgrid/grid/PadCommands.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/DatePadWidget.h"
#include "quillgrid/hosts/qt/KeyTranslation.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>

namespace quillgrid::qt {

namespace {

bool Navigates(std::int32_t keyCode) {
    return (keyCode >= 33 && keyCode <= 40) || keyCode == 121; // page up to the arrows; F10 opens menus
}

/// 0 for a key that types nothing.
std::int32_t CharacterOf(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Enter:
    case Qt::Key_Return: return 13;
    case Qt::Key_Escape: return 27;
    default: return IsTyping(event) && !event.text().isEmpty() ? event.text().front().unicode() : 0;
    }
}

} // namespace

CalendarWidget::CalendarWidget(QWidget* parent, Qt::WindowFlags flags)
    : CalendarProperties(parent, flags), ambientFont_(FromQFont(font())), pad_(new DatePadWidget(*this)) {
    pad_->setParent(this);
    setFocusPolicy(Qt::StrongFocus);
    pad().DateChange.Listen([this] { Q_EMIT dateChange(currentDate()); });
    pad().DateClick.Listen([this] { Q_EMIT dateClick(currentDate()); });
    pad_->Report([this] { TellChanges(); });
    resize(sizeHint());
    TellChanges();
}

CalendarWidget::~CalendarWidget() = default;

QGCalendar& CalendarWidget::pad() {
    return pad_->Pad();
}

const QGCalendar& CalendarWidget::pad() const {
    return pad_->Pad();
}

QGCalendar& CalendarWidget::Control() const {
    return pad_->Pad();
}

QDate CalendarWidget::currentDate() const {
    return FromControl(pad().CurrentDate());
}

void CalendarWidget::setCurrentDate(QDate date) {
    const DateTime day = ToControl(date);
    if (date.isValid() && FromControl(day) == date) pad().SetCurrentDate(day);
}

void CalendarWidget::resetCurrentDate() {
    setCurrentDate(QDate::currentDate());
}

QSize CalendarWidget::sizeHint() const {
    const Size size = pad().RoomySize();
    return {size.Width, size.Height};
}

/// A font that the program has given to the calendar stays.
void CalendarWidget::FollowLook() {
    const Font own = FromQFont(font());
    if (pad().Font() == ambientFont_) pad().SetFont(own);
    ambientFont_ = own;
    pad_->setFont(font());
    pad_->setPalette(palette());
    pad_->setLayoutDirection(layoutDirection());
    pad_->setLocale(locale());
    pad().SetEnabled(isEnabled());
    pad().Refresh();
    updateGeometry();
    TellChanges();
}

void CalendarWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::FontChange:
    case QEvent::PaletteChange:
    case QEvent::LocaleChange:
    case QEvent::LayoutDirectionChange:
    case QEvent::StyleChange:
    case QEvent::EnabledChange: return FollowLook();
    default: return;
    }
}

void CalendarWidget::resizeEvent(QResizeEvent*) {
    pad_->resize(size());
    pad().Refresh();
}

void CalendarWidget::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    pad().Refresh();
}

/// What comes here was pressed beside the calendar: a popup hears of presses anywhere.
void CalendarWidget::mousePressEvent(QMouseEvent* event) {
    event->accept();
    pad().MouseDown(OnControl(event->position(), *this));
}

/// Keys of the calendar are not shortcuts of its window, while it has the focus.
bool CalendarWidget::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        auto& key = *static_cast<QKeyEvent*>(event);
        if (ShiftStateOf(key) == 0 && (Navigates(KeyCodeOf(key)) || CharacterOf(key) != 0)) key.accept();
    }
    return QWidget::event(event);
}

void CalendarWidget::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    pad_->FollowFocus();
}

void CalendarWidget::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    pad_->FollowFocus();
}

void CalendarWidget::keyPressEvent(QKeyEvent* event) {
    std::int32_t code = KeyCodeOf(*event);
    std::int32_t character = CharacterOf(*event);
    if (!Navigates(code) && character == 0) return QWidget::keyPressEvent(event);
    event->accept();
    if (RunPadCommand(pad(), code, ShiftStateOf(*event))) return;
    if (Navigates(code)) return pad().KeyDown(code, ShiftStateOf(*event));
    pad().KeyPress(character);
}

} // namespace quillgrid::qt
