#pragma once

#include <QLineEdit>

#include <functional>

namespace quillgrid::qt {

/// What comes of several lines or columns has blanks between its words; a break at the end is no part of it.
QString OneLine(const QString& text);

/// The edit box: a line edit whose every way of putting text in passes a gate that the host sets. Keys go
/// through the host's event filter.
class GridLineEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit GridLineEdit(QWidget* parent);

    /// Asked before a paste from keyboard, menu or mouse.
    std::function<bool()> PasteAllowed = [] { return true; };
    /// Takes pasted text in.
    std::function<void(const QString&)> TakeText = [this](const QString& text) { insert(text); };
    /// A paste was refused.
    std::function<void()> Refuse = [] {};

    /// Pastes from the clipboard, or refuses.
    void PasteGuarded();
    /// Hands the event to the line edit as it stands.
    void Compose(QInputMethodEvent* event) { QLineEdit::inputMethodEvent(event); }

    /// An input method learns where a masked text stands, never what it says.
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    Q_INVOKABLE QVariant inputMethodQuery(Qt::InputMethodQuery query, QVariant argument) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool LeaveSelection(const QKeyEvent& event);
    void TakeOrRefuse(const QString& text);
    bool Hides(Qt::InputMethodQuery query) const;

    bool mayDrag_ = false; ///< the button went down on selected text
};

} // namespace quillgrid::qt
