#pragma once

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QVBoxLayout>
#include <QWidget>

#include <memory>
#include <string>
#include <vector>

namespace quillgrid::qt {

/// A window with a form between two line edits, driven as a person would.
class QtForm {
public:
    QtForm() {
        auto* layout = new QVBoxLayout(&window_);
        layout->addWidget(Before = new QLineEdit);
        layout->addWidget(Widget = new QuillgridWidget);
        layout->addWidget(After = new QLineEdit);
        QObject::connect(Widget, &QuillgridWidget::change, Widget,
                         [this](Cell* cell) { Log("change", *cell); });
        QObject::connect(Widget, &QuillgridWidget::selChange, Widget,
                         [this](Cell* cell) { Log("select", *cell); });
        QObject::connect(Widget, &QuillgridWidget::beep, Widget, [this] { Events.push_back("beep"); });
        QObject::connect(Widget, &QuillgridWidget::validateCell, Widget,
                         [this](Cell* cell, bool*) { Log("validate", *cell); });
        QObject::connect(Widget, &QuillgridWidget::validateCellError, Widget,
                         [this](Cell* cell, ValidationErrConstants code, bool* cancel) {
                             Log("refused " + std::to_string(code), *cell);
                             *cancel = Cancel;
                         });
    }

    Quillgrid& Grid() { return Widget->grid(); }
    void Show() {
        Grid().Refresh();
        window_.resize(400, 300);
        window_.show();
        window_.activateWindow();
        Widget->setFocus();
        Settle();
        Events.clear();
    }
    void Settle() { QApplication::processEvents(); }
    QWidget& Window() { return window_; }
    QLineEdit* Edit() { return Widget->findChild<QLineEdit*>(); }

    static void Press(int key, const QString& text = {}, Qt::KeyboardModifiers held = {}) {
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, held, text);
            if (QWidget* focus = QApplication::focusWidget()) QApplication::sendEvent(focus, &event);
        }
    }
    static void Type(const QString& text) {
        for (const char32_t character : text.toUcs4()) {
            const QString typed = QString::fromUcs4(&character, 1);
            Press(character < 128 ? typed.toUpper().at(0).unicode() : 0, typed);
        }
    }
    static void Enter() { Press(Qt::Key_Return, QStringLiteral("\r")); }

    QuillgridWidget* Widget = nullptr;
    QLineEdit* Before = nullptr;
    QLineEdit* After = nullptr;
    std::vector<std::string> Events;
    bool Cancel = false;

private:
    void Log(const std::string& event, const Cell& cell) { Events.push_back(event + " " + cell.Key()); }

    QWidget window_;
};

} // namespace quillgrid::qt
