#pragma once

#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>

class QInputMethodEvent;
class QKeyEvent;
class QMouseEvent;
class QWidget;

namespace quillgrid {
class Quillgrid;
}

namespace quillgrid::qt {

class GridLineEdit;

/// Stands before the edit box and hands every key and every character to the control first, whichever way it
/// comes: keyboard, input method or paste. A key may destroy the whole widget: nothing is touched after that.
class KeyRouter : public QObject {
public:
    /// All must outlive the router. `owner` is the control's widget, in which the edit box stands.
    KeyRouter(Quillgrid& grid, GridLineEdit& edit, const QWidget& owner);

    /// Called before each key that is not only a modifier.
    std::function<void()> BeforeInput = [] {};
    /// Moves the focus to the next (or previous) control of the window.
    std::function<void(bool next)> LeaveControl = [](bool) {};

    /// Whether the control wants the key before any shortcut of the window does.
    bool Claims(const QKeyEvent& event) const;
    /// True: the control used the key. Also for keys that reach the control while its edit box is hidden.
    bool KeyDown(const QKeyEvent& event);
    void KeyUp(const QKeyEvent& event);
    /// Types a text character by character.
    void TypeText(const QString& text);
    /// What an input method is still composing is typed now: the cell is about to be taken over.
    void FinishComposing();
    /// The box has another text: what was composed went with the one before.
    void ForgetComposing() { composed_.clear(); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Press(QKeyEvent* event);
    bool Release(QKeyEvent* event);
    bool Override(QKeyEvent* event);
    bool Compose(QInputMethodEvent* event);
    bool DoubleClick(QMouseEvent* event);
    bool TypeKey(const QKeyEvent& event);
    bool LeaveByControlTab(const QKeyEvent& event);
    qsizetype PieceSize() const;
    void Insert(const QString& piece);

    Quillgrid& grid_;
    GridLineEdit& edit_;
    const QWidget& owner_;
    QString composed_; ///< not yet typed
};

} // namespace quillgrid::qt
