#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/qt/AccessibleGrid.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/KeyTranslation.h"
#include "quillgrid/hosts/qt/WidgetHost.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QHideEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPointer>
#include <QUrl>
#include <QWheelEvent>

#include <algorithm>
#include <utility>

namespace quillgrid::qt {

namespace {

constexpr int UsualWidth = 360;
constexpr int UsualRows = 10;
constexpr int RowsAtLeast = 3;

/// Qt forgets which widget a window will focus only where it has the focus now; one that moves to another
/// window and dies there would be remembered by the first.
void ClearFocusInside(const QuillgridWidget& form) {
    QWidget* const remembered = form.window()->focusWidget();
    if (remembered && form.isAncestorOf(remembered)) remembered->clearFocus();
}

} // namespace

QuillgridWidget::QuillgridWidget(QWidget* parent, Mode mode) : QuillgridProperties(parent) {
    AccessibleGrid::Install();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAcceptDrops(true);
    setAttribute(Qt::WA_OpaquePaintEvent); // the control's own background takes the place of the window's
    host_ = std::make_unique<WidgetHost>(*this, mode == UserMode);
    TellChanges();
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

Quillgrid& QuillgridWidget::Control() const {
    return host_->Grid;
}

QtImageSource& QuillgridWidget::images() {
    return host_->Images;
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
    const int duration = std::max(0, milliseconds);
    if (std::exchange(host_->Refusals.Duration, duration) != duration) Q_EMIT messageDurationChanged();
}

void QuillgridWidget::resetMessageDuration() {
    setMessageDuration(RefusalMessages::UsualDuration);
}

bool QuillgridWidget::commitEdit() {
    return host_->Commit();
}

bool QuillgridWidget::holdsTypedText() const {
    return host_->Grid.HoldsTypedText();
}

void QuillgridWidget::setTabPolicy(TabPolicy policy) {
    using Control = quillgrid::TabPolicy;
    if (std::exchange(tabPolicy_, policy) == policy) return;
    host_->Grid.SetTabPolicy(policy == TabWraps    ? Control::Wrap
                             : policy == TabLeaves ? Control::Leave
                                                   : Control::LeaveAtEnds);
    Q_EMIT tabPolicyChanged();
}

QRect QuillgridWidget::onWidget(const Rect& area) const {
    return ToQRect(OnWidget(area, *this));
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
    const QPointer<QuillgridWidget> self(this);
    host_->Grid.Resize();
    if (self) host_->FollowWidget();
}

void QuillgridWidget::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    event->accept();
    host_->Refusals.Dismiss();
    const QPointer<QuillgridWidget> self(this);
    host_->Keys.FinishComposing();
    if (!self) return;
    host_->Grid.MouseDown(OnControl(event->position(), *this));
}

void QuillgridWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    event->accept();
    host_->Grid.MouseUp(OnControl(event->position(), *this));
}

void QuillgridWidget::mouseMoveEvent(QMouseEvent* event) {
    host_->Grid.MouseMove(OnControl(event->position(), *this), event->buttons() != Qt::NoButton);
}

void QuillgridWidget::leaveEvent(QEvent*) {
    host_->Grid.MouseLeave();
}

void QuillgridWidget::dragEnterEvent(QDragEnterEvent* event) {
    if (event->mimeData()->hasText() || event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void QuillgridWidget::dragMoveEvent(QDragMoveEvent* event) {
    event->setDropAction(Qt::CopyAction);
    event->setAccepted(host_->Grid.MayDrop(OnControl(event->position(), *this)));
}

void QuillgridWidget::dropEvent(QDropEvent* event) {
    const QMimeData& dropped = *event->mimeData();
    const Point place = OnControl(event->position(), *this);
    std::vector<std::string> files;
    for (const QUrl& url : dropped.urls())
        files.push_back(FromQString(url.isLocalFile() ? url.toLocalFile() : url.toString()));
    event->setDropAction(Qt::CopyAction);
    host_->Refusals.Dismiss();
    // File managers offer their files as text too, in a form for programs.
    const bool taken =
        files.empty() ? dropped.hasText() && host_->Grid.DropText(place, FromQString(OneLine(dropped.text())))
                      : host_->Grid.DropFiles(place, files);
    event->setAccepted(taken);
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
    const QPointer<QuillgridWidget> self(this);
    host_->Keys.FinishComposing();
    if (self) host_->Grid.MouseWheel(rows);
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
    if (event->type() == QEvent::Shortcut && host_) {
        host_->PressAccessKey(static_cast<QShortcutEvent*>(event)->shortcutId());
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride && host_ &&
        host_->Keys.Claims(*static_cast<QKeyEvent*>(event))) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::KeyPress && !(focusProxy() && focusProxy()->hasFocus())) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (KeyCodeOf(*key) == KeyTab && host_->Keys.KeyDown(*key))
            return true; // QWidget would move the focus
    }
    if (event->type() == QEvent::WindowDeactivate && host_) host_->LetGo();
    if (event->type() == QEvent::ParentAboutToChange && host_) ClearFocusInside(*this);
    const bool taken = QWidget::event(event);
    if (event->type() == QEvent::ScreenChangeInternal && host_) host_->ScreenChanged();
    return taken;
}

void QuillgridWidget::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (!host_) return;
    switch (event->type()) {
    case QEvent::FontChange: return host_->FontChanged();
    case QEvent::LocaleChange: return host_->LocaleChanged();
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
