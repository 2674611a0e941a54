#include "quillgrid/hosts/qt/GridLineEdit.h"

#include <QAction>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QRegularExpression>

#include <limits>
#include <utility>

namespace quillgrid::qt {

QString OneLine(const QString& text) {
    static const QRegularExpression breaks(QStringLiteral("[\\t\\n\\v\\f\\r\\x{85}\\x{2028}\\x{2029}]+"));
    static const QRegularExpression ends(u'^' + breaks.pattern() + u'|' + breaks.pattern() + u'$');
    return QString(text).remove(ends).replace(breaks, QStringLiteral(" "));
}

GridLineEdit::GridLineEdit(QWidget* parent) : QLineEdit(parent) {
    setFrame(false);
    setMaxLength(
        std::numeric_limits<int>::max()); // the cell sets the limit; Qt's own would cut what it holds
    setAcceptDrops(false);                // a drop would pass the gate by
    setDragEnabled(true);                 // Qt itself drags no masked text
    setFocusPolicy(Qt::StrongFocus);
}

void GridLineEdit::PasteGuarded() {
    TakeOrRefuse(QGuiApplication::clipboard()->text());
}

void GridLineEdit::TakeOrRefuse(const QString& text) {
    if (isReadOnly() || !PasteAllowed()) {
        Refuse();
    } else if (!text.isEmpty()) {
        TakeText(OneLine(text));
    }
}

void GridLineEdit::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Paste)) {
        event->accept();
        return PasteGuarded();
    }
    // What may not be copied would not be cut but lost.
    if (event->matches(QKeySequence::Cut) && echoMode() != Normal) return event->accept();
    if (LeaveSelection(*event)) return event->accept();
    QLineEdit::keyPressEvent(event);
}

/// To the end of the selection that the arrow points to, wherever in it the caret stands.
bool GridLineEdit::LeaveSelection(const QKeyEvent& event) {
    const bool left = event.matches(QKeySequence::MoveToPreviousChar);
    if (!hasSelectedText() || (!left && !event.matches(QKeySequence::MoveToNextChar))) return false;
    setCursorPosition(left != text().isRightToLeft() ? selectionStart() : selectionEnd());
    return true;
}

void GridLineEdit::contextMenuEvent(QContextMenuEvent* event) {
    QMenu* menu = createStandardContextMenu();
    if (!menu) return;
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (auto* paste = menu->findChild<QAction*>(QStringLiteral("edit-paste"))) {
        paste->disconnect(this);
        paste->setEnabled(paste->isEnabled() && PasteAllowed());
        connect(paste, &QAction::triggered, this, &GridLineEdit::PasteGuarded);
    }
    menu->popup(event->globalPos());
}

void GridLineEdit::mousePressEvent(QMouseEvent* event) {
    const bool whole = event->button() == Qt::LeftButton && hasSelectedText();
    QLineEdit::mousePressEvent(event);
    mayDrag_ = whole && hasSelectedText() && event->modifiers() == Qt::NoModifier;
}

void GridLineEdit::mouseReleaseEvent(QMouseEvent* event) {
    QClipboard* clipboard = QGuiApplication::clipboard();
    if (event->button() != Qt::MiddleButton || !clipboard->supportsSelection()) {
        QLineEdit::mouseReleaseEvent(event);
        // After a press on selected text Qt waits for a drag; when none came, the caret goes to the pointer.
        if (std::exchange(mayDrag_, false) && !hasSelectedText())
            setCursorPosition(cursorPositionAt(event->position().toPoint()));
        return;
    }
    event->accept();
    const QString text = clipboard->text(QClipboard::Selection); // before the click drops our own selection
    if (!isReadOnly() && PasteAllowed()) setCursorPosition(cursorPositionAt(event->position().toPoint()));
    TakeOrRefuse(text);
}

bool GridLineEdit::Hides(Qt::InputMethodQuery query) const {
    constexpr Qt::InputMethodQueries texts =
        Qt::ImSurroundingText | Qt::ImCurrentSelection | Qt::ImTextBeforeCursor | Qt::ImTextAfterCursor;
    return echoMode() != Normal && texts.testFlag(query);
}

QVariant GridLineEdit::inputMethodQuery(Qt::InputMethodQuery query) const {
    return Hides(query) ? QVariant() : QLineEdit::inputMethodQuery(query);
}

QVariant GridLineEdit::inputMethodQuery(Qt::InputMethodQuery query, QVariant argument) const {
    return Hides(query) ? QVariant() : QLineEdit::inputMethodQuery(query, argument);
}

} // namespace quillgrid::qt
