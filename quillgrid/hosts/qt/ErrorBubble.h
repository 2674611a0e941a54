#pragma once

#include <QTimer>
#include <QWidget>

namespace quillgrid::qt {

/// Says beside a cell why its text was refused. A child of the control that takes neither focus nor mouse, so
/// that it is never in the way and never outlives its form.
class ErrorBubble : public QWidget {
    Q_OBJECT

public:
    explicit ErrorBubble(QWidget* parent);

    /// Shows the text at a value, below it or above where there is no room below. After `milliseconds` it
    /// goes by itself, unless that is 0.
    void Say(const QString& text, const QRect& value, int milliseconds);
    /// The value has moved.
    void PointAt(const QRect& value);
    void Dismiss();
    /// Empty while hidden.
    QString Text() const { return isHidden() ? QString() : text_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize SizeFor(int width) const;

    QString text_;
    QTimer timer_;
    bool below_ = true;
    int tipX_ = 0;
};

} // namespace quillgrid::qt
