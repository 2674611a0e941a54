#pragma once

#include "quillgrid/hosts/qt/FormBinding.h"
#include "tests/hosts/QtForm.h"

#include <string>
#include <vector>

namespace quillgrid::qt {

/// A form with a binding, its signals written down.
class BoundForm : public QtForm {
public:
    void Listen(FormBinding& binding) {
        QObject::connect(&binding, &FormBinding::dirtyChanged, Widget,
                         [this](bool dirty) { Told.push_back(dirty ? "dirty" : "clean"); });
        QObject::connect(&binding, &FormBinding::conflict, Widget,
                         [this](Cell* cell) { Told.push_back("conflict " + cell->Key()); });
        QObject::connect(&binding, &FormBinding::refused, Widget,
                         [this](Cell* cell, FormBinding::Refusal reason, const QString& text) {
                             const auto names = QMetaEnum::fromType<FormBinding::Refusal>();
                             Told.push_back(std::string(names.valueToKey(reason)) + " " +
                                            (cell ? cell->Key() : "") + " " + text.toStdString());
                         });
    }
    Cell& At(const char* key) { return *Grid().Cells().Item(key); }
    std::string TextAt(const char* key) { return At(key).Text(); }
    /// Selects a cell and types over its value.
    void TypeAt(const char* key, const QString& text) {
        At(key).SetFocus();
        Settle();
        Edit()->selectAll();
        Type(text);
        Settle();
    }
    void EnterAt(const char* key, const QString& text) {
        TypeAt(key, text);
        Enter();
        Settle();
    }
    static void Escape() { Press(Qt::Key_Escape, QStringLiteral("\x1b")); }
    std::vector<std::string> TakeTold() { return std::exchange(Told, {}); }

    std::vector<std::string> Told;
};

} // namespace quillgrid::qt
