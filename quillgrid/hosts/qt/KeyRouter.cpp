#include "quillgrid/hosts/qt/KeyRouter.h"

#include "quillgrid/grid/Keys.h"
#include "quillgrid/grid/Quillgrid.h"
#include "quillgrid/hosts/qt/Conversions.h"
#include "quillgrid/hosts/qt/GridLineEdit.h"
#include "quillgrid/hosts/qt/KeyTranslation.h"

#include <QGuiApplication>
#include <QInputMethod>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <utility>

namespace quillgrid::qt {

namespace {

constexpr char32_t EnterCharacter = 13;
constexpr qsizetype LongestPiece = 1000;

/// The code point that a key types; Enter, Backspace and Escape are their control characters everywhere.
char32_t CharacterOf(const QKeyEvent& event) {
    switch (KeyCodeOf(event)) {
    case KeyEnter: return EnterCharacter;
    case KeyBackspace: return KeyBackspace;
    case KeyEscape: return KeyEscape;
    default: break;
    }
    const auto characters = event.text().toUcs4();
    return characters.size() == 1 ? characters.front() : 0;
}

bool IsControlCharacter(char32_t character) {
    return character < 32 || (character >= 127 && character < 160);
}

} // namespace

KeyRouter::KeyRouter(Quillgrid& grid, GridLineEdit& edit, const QWidget& owner)
    : grid_(grid), edit_(edit), owner_(owner) {
    edit_.installEventFilter(this);
}

bool KeyRouter::KeyDown(const QKeyEvent& event) {
    const QPointer<KeyRouter> alive(this);
    if (!IsModifierKey(event)) {
        BeforeInput();
        FinishComposing();
        if (!alive) return true;
    }
    const std::int32_t code = KeyCodeOf(event);
    if (code != 0 && grid_.KeyDown(code, ShiftStateOf(event))) return true;
    if (!alive) return true;
    return TypeKey(event) || !alive;
}

bool KeyRouter::TypeKey(const QKeyEvent& event) {
    if (!IsTyping(event)) return LeaveByControlTab(event);
    const char32_t typed = CharacterOf(event);
    if (typed == 0) { // several characters on one key
        TypeText(event.text());
        return true;
    }
    const QPointer<KeyRouter> alive(this);
    char32_t character = typed;
    if (grid_.KeyPress(character) || !alive) return true;
    if (character == typed || IsControlCharacter(character)) return false;
    if (!edit_.isReadOnly()) edit_.insert(QString::fromUcs4(&character, 1));
    return true;
}

bool KeyRouter::LeaveByControlTab(const QKeyEvent& event) {
    if (KeyCodeOf(event) != KeyTab || !event.modifiers().testFlag(Qt::ControlModifier)) return false;
    const bool back = event.modifiers().testFlag(Qt::ShiftModifier) || event.key() == Qt::Key_Backtab;
    LeaveControl(!back);
    return true;
}

void KeyRouter::KeyUp(const QKeyEvent& event) {
    const std::int32_t code = KeyCodeOf(event);
    if (!event.isAutoRepeat()) grid_.KeyUp(code, ShiftStateOf(event));
}

void KeyRouter::TypeText(const QString& text) {
    const QPointer<KeyRouter> alive(this);
    QString piece;
    for (const char32_t typed : text.toUcs4()) {
        if (IsControlCharacter(typed)) continue;
        char32_t character = typed;
        const bool used = grid_.KeyPress(character);
        if (!alive) return;
        if (used || character == 0) continue;
        piece += QString::fromUcs4(&character, 1);
        if (piece.size() >= PieceSize()) Insert(std::exchange(piece, {}));
    }
    Insert(piece);
}

// The box lays its whole text out after each insertion, so a long text goes in piece by piece. A piece is a
// single character where the control's answer to the next one depends on it: while something is selected,
// near the cell's limit, where the case of a letter follows from the one before, and in numbers, whose minus
// jumps to the front.
qsizetype KeyRouter::PieceSize() const {
    const Cell* cell = grid_.Cell();
    if (!cell || edit_.hasSelectedText() || edit_.text().isEmpty()) return 1;
    if (cell->CharCase() == qgccUpperFirst || cell->CharCase() == qgccNice) return 1;
    if (cell->ValidationRule() != qgvrNone) return 1;
    const qsizetype room = cell->MaxLength() - edit_.text().size();
    return std::clamp(room, qsizetype{1}, LongestPiece);
}

void KeyRouter::Insert(const QString& piece) {
    if (!piece.isEmpty() && !edit_.isReadOnly()) edit_.insert(piece);
}

bool KeyRouter::eventFilter(QObject* watched, QEvent* event) {
    if (watched != &edit_) return false;
    switch (event->type()) {
    case QEvent::ShortcutOverride: return Override(static_cast<QKeyEvent*>(event));
    case QEvent::KeyPress: return Press(static_cast<QKeyEvent*>(event));
    case QEvent::KeyRelease: return Release(static_cast<QKeyEvent*>(event));
    case QEvent::InputMethod: return Compose(static_cast<QInputMethodEvent*>(event));
    case QEvent::MouseButtonPress: BeforeInput(); return false;
    case QEvent::MouseButtonDblClick: return DoubleClick(static_cast<QMouseEvent*>(event));
    default: return false;
    }
}

// Keys of boxes that are not there are left to the window.
bool KeyRouter::Claims(const QKeyEvent& event) const {
    const std::int32_t code = KeyCodeOf(event);
    const std::int32_t shift = ShiftStateOf(event);
    const bool menu = code == KeyF10 && shift == ShiftNone && grid_.HasMenuBox();
    const bool close = code == KeyF4 && shift == ShiftControl && grid_.HasCloseBox();
    return menu || close || ClaimsBeforeShortcuts(event) || grid_.IsPadShown();
}

bool KeyRouter::Override(QKeyEvent* event) {
    if (!Claims(*event)) return false;
    event->accept();
    return true;
}

bool KeyRouter::Press(QKeyEvent* event) {
    if (!KeyDown(*event)) return false;
    event->accept();
    return true;
}

bool KeyRouter::Release(QKeyEvent* event) {
    KeyUp(*event);
    event->accept();
    return true;
}

bool KeyRouter::DoubleClick(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return false;
    const QPointer<KeyRouter> alive(this);
    grid_.DoubleClick(OnControl(edit_.mapToParent(event->position()), owner_));
    return !alive;
}

void KeyRouter::FinishComposing() {
    if (composed_.isEmpty()) return;
    QGuiApplication::inputMethod()->commit();
    if (composed_.isEmpty()) return;
    QInputMethodEvent end; // the input method has nothing to say: what stands there counts
    end.setCommitString(std::exchange(composed_, {}));
    Compose(&end);
}

// The box may keep what is still being composed; what is finished is typed like any other text.
bool KeyRouter::Compose(QInputMethodEvent* event) {
    composed_ = edit_.isReadOnly() ? QString() : event->preeditString();
    if (event->commitString().isEmpty()) return false;
    const QPointer<KeyRouter> alive(this);
    BeforeInput();
    QInputMethodEvent end;
    end.setCommitString({}, event->replacementStart(), event->replacementLength());
    edit_.Compose(&end);
    TypeText(event->commitString());
    if (alive && !event->preeditString().isEmpty()) {
        QInputMethodEvent rest(event->preeditString(), event->attributes());
        edit_.Compose(&rest);
    }
    event->accept();
    return true;
}

} // namespace quillgrid::qt
