#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace quillgrid::qt {

/// Watches the whole program while a pad is open, for what takes the place away on which the pad stands: the
/// control's window moves, hides, closes or is no longer the active one, or the user presses something else.
class PadGuard : public QObject {
public:
    explicit PadGuard(const QWidget& owner) : owner_(owner) {}

    std::function<void()> Close = [] {};
    /// Whether the widget belongs to a pad, its menus included.
    std::function<bool(const QWidget&)> IsPad = [](const QWidget&) { return false; };

    void Start();
    void Stop();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool Ends(const QWidget& widget, const QEvent& event) const;

    const QWidget& owner_;
    bool watching_ = false;
};

} // namespace quillgrid::qt
