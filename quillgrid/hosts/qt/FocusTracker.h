#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace quillgrid::qt {

/// Knows whether the user is in the control. Going from the widget to its edit box, opening a menu and
/// switching to another window are no leaving: what is being typed waits, unchecked, until the user is back.
class FocusTracker : public QObject {
public:
    /// The widget must outlive the tracker.
    explicit FocusTracker(QWidget& widget);

    bool IsEntered() const { return entered_; }
    /// Asks for the focus; while the control is being left only after that has ended.
    void Request();
    /// The widget can no longer have the focus.
    void Leave();

    std::function<void()> Entered = [] {};
    std::function<void()> Left = [] {};
    /// Asked before the window closes while the user is in the control: false keeps it open.
    std::function<bool()> MayClose = [] { return true; };

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Watch(QWidget* window);
    void Changed(const QWidget* now);
    void Enter();
    void TakeFocus();

    QWidget& widget_;
    QPointer<QWidget> window_; ///< in which the user is
    bool entered_ = false;
    bool leaving_ = false;
};

} // namespace quillgrid::qt
