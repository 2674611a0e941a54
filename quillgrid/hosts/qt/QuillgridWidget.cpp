#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/KeyTranslation.h"
#include "quillgrid/hosts/qt/WidgetHost.h"

#include <QApplication>
#include <QHideEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QWheelEvent>

#include <algorithm>

namespace quillgrid::qt {

namespace {

constexpr int UsualWidth = 360;
constexpr int UsualRows = 10;
constexpr int RowsAtLeast = 3;

} // namespace

QuillgridWidget::QuillgridWidget(QWidget* parent) : QWidget(parent) {
    setFocusPolicy(Qt::StrongFocus);
    host_ = std::make_unique<WidgetHost>(*this);
}

QuillgridWidget::~QuillgridWidget() {
    host_.reset();
}

Quillgrid& QuillgridWidget::grid() {
    return host_->Grid;
}
const Quillgrid& QuillgridWidget::grid() const {
    return host_->Grid;
}

void QuillgridWidget::setMessageSource(MessageSource source) {
    host_->Refusals.Source = std::move(source);
}

void QuillgridWidget::showMessage(const QString& text) {
    if (text.isEmpty()) return host_->Refusals.Dismiss();
    host_->Refusals.Say(host_->Grid.Cell(), text);
}

QString QuillgridWidget::shownMessage() const {
    return host_->Refusals.ShownText();
}
int QuillgridWidget::messageDuration() const {
    return host_->Refusals.Duration;
}
void QuillgridWidget::setMessageDuration(int milliseconds) {
    host_->Refusals.Duration = std::max(0, milliseconds);
}

bool QuillgridWidget::commitEdit() {
    return host_->Grid.CommitEdit();
}

QSize QuillgridWidget::sizeHint() const {
    const int row = fontMetrics().height() + 8;
    return minimumSizeHint().expandedTo({UsualWidth, UsualRows * row});
}

QSize QuillgridWidget::minimumSizeHint() const {
    const Size smallest = host_->Grid.MinimumSize();
    return {smallest.Width, std::max(smallest.Height, RowsAtLeast * (fontMetrics().height() + 8))};
}

void QuillgridWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.setClipRegion(event->region());
    host_->Window.Show(painter, event->region());
}

void QuillgridWidget::resizeEvent(QResizeEvent*) {
    host_->Grid.Resize();
    host_->Refusals.Follow();
}

void QuillgridWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    event->accept();
    host_->Refusals.Dismiss();
    host_->Grid.MouseDown(FromQPoint(event->position().toPoint()));
}

void QuillgridWidget::wheelEvent(QWheelEvent* event) {
    const bool scrolls = host_->Grid.VisibleRows() < host_->Grid.RowCount();
    if (!scrolls || event->angleDelta().y() == 0)
        return event->ignore(); // a scroll area around us may want it
    event->accept();
    const int rows =
        host_->Wheel.Rows(event->angleDelta().y(), std::max(1, QApplication::wheelScrollLines()));
    if (rows == 0) return;
    host_->Refusals.Dismiss();
    host_->Grid.MouseWheel(rows);
}

// Reached while the edit box is hidden; keys that the box leaves over have been seen already.
void QuillgridWidget::keyPressEvent(QKeyEvent* event) {
    const bool leftOver = KeyCodeOf(*event) == KeyTab || (focusProxy() && focusProxy()->hasFocus());
    if (leftOver || !host_->Keys.KeyDown(*event)) event->ignore();
}

void QuillgridWidget::keyReleaseEvent(QKeyEvent* event) {
    const bool leftOver = focusProxy() && focusProxy()->hasFocus();
    event->ignore();
    if (!leftOver) host_->Keys.KeyUp(*event);
}

bool QuillgridWidget::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride && ClaimsBeforeShortcuts(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && !(focusProxy() && focusProxy()->hasFocus())) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (KeyCodeOf(*key) == KeyTab && host_->Keys.KeyDown(*key))
            return true; // QWidget would move the focus
    }
    return QWidget::event(event);
}

void QuillgridWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (!host_) return;
    switch (event->type()) {
    case QEvent::FontChange: return host_->FontChanged();
    case QEvent::PaletteChange:
    case QEvent::StyleChange:
    case QEvent::EnabledChange:
    case QEvent::LanguageChange:
    case QEvent::LayoutDirectionChange: return host_->LookChanged();
    default: return;
    }
}

void QuillgridWidget::focusInEvent(QFocusEvent*) {
    update();
}

void QuillgridWidget::hideEvent(QHideEvent* event) {
    host_->Refusals.Dismiss();
    if (!event->spontaneous()) host_->Focus.Leave(); // a minimised window comes back as it was
}

} // namespace quillgrid::qt
