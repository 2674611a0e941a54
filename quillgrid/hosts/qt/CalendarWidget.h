#pragma once

#include "quillgrid/hosts/qt/CalendarProperties.h"

#include <QDate>

namespace quillgrid::qt {

class DatePadWidget;

/// The calendar by itself, in a layout or with `Qt::Popup` as a window that drops down: a month with its
/// holidays, week numbers and date ranges. It follows the widget's font, palette, locale, direction and
/// enabled state.
///
/// A slot may delete the widget, except while Qt gives it another look: Qt looks at it afterwards.
class QUILLGRID_EXPORT CalendarWidget : public CalendarProperties {
    Q_OBJECT
    Q_PROPERTY(QDate currentDate READ currentDate WRITE setCurrentDate RESET resetCurrentDate NOTIFY
                   dateChange USER true)

public:
    explicit CalendarWidget(QWidget* parent = nullptr, Qt::WindowFlags flags = {});
    ~CalendarWidget() override;

    /// The calendar itself; lives as long as the widget. What is set there shows at its next `Refresh`.
    QGCalendar& pad();
    const QGCalendar& pad() const;

    QDate currentDate() const;
    /// The nearest date that may be picked; an invalid date, or one outside of the years 100 to
    /// 9999, changes nothing.
    void setCurrentDate(QDate date);
    /// Today, or the nearest date that may be picked.
    void resetCurrentDate();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    /// Another day became the current one, while the widget is enabled.
    void dateChange(QDate date);
    /// The user is done: clicked a day, pressed Enter, Space or Escape, or clicked beside a popup.
    void dateClick(QDate date);

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QGCalendar& Control() const override;
    void FollowLook();

    Font ambientFont_;   ///< the widget's, as the calendar took it over last
    DatePadWidget* pad_; ///< a child
};

} // namespace quillgrid::qt
