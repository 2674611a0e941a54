#pragma once

#include "quillgrid/hosts/qt/QuillgridWidget.h"
#include "tests/monkey/Lives.h"

#include <QLineEdit>
#include <QPointer>
#include <QWidget>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace quillgrid::monkey {

/// A window with a form between other widgets, driven by Qt's own events; slots do, once each, what was armed
/// for them. Nothing is thrown: exceptions must not pass through Qt.
class QtMonkeyForm {
public:
    QtMonkeyForm();
    ~QtMonkeyForm();

    static Repertoire Acts();
    void Run(const Step& step);
    /// What does not hold now, nothing when all is well.
    std::string Check();

    // For the acts.

    qt::QuillgridWidget* Widget() { return widget_; }
    QWidget& Window() { return *window_; }
    QWidget& OtherWindow() { return *other_; }
    QLineEdit* Edit();
    /// Where keys go; the form itself when nothing has the focus.
    QWidget* KeyTarget();
    void Arm(std::uint32_t hook, const Step& act) { armed_[hook % HookCount].push_back(act); }
    void Create(const Step& step);
    /// The user's hands, not Qt's geometry, are what the handlers under way answer.
    bool MayDelete = false;
    bool Reparenting = false;
    bool Doomed = false; ///< deleted later
    bool CancelErrors = false;
    bool CancelValues = false;

private:
    static constexpr std::uint32_t HookCount = 11;

    void Act(const Step& step);
    void Fire(std::uint32_t hook);
    void Listen();

    std::unique_ptr<QWidget> window_;
    std::unique_ptr<QWidget> other_;
    QPointer<qt::QuillgridWidget> widget_;
    std::map<std::uint32_t, std::vector<Step>> armed_;
    int depth_ = 0;
};

/// Plays steps with an application of its own: only in a process that has none.
Monkey QtMonkey();

} // namespace quillgrid::monkey
