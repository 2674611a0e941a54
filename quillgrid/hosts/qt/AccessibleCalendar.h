#pragma once

#include "quillgrid/hosts/qt/AccessiblePad.h"
#include "quillgrid/hosts/qt/DatePadWidget.h"

#include <QDate>

namespace quillgrid::qt {

/// The calendar: the buttons and menus of its caption, the table of days, and the line that names today.
class AccessibleCalendar : public AccessiblePad {
public:
    enum Parts {
        PreviousMonth = 1,
        NextMonth,
        Months,
        Years,
        PreviousYear,
        NextYear,
        Month,
        Today,
        FirstDay
    };

    AccessibleCalendar(QWidget& face, DatePadWidget& pad) : AccessiblePad(face, pad, QAccessible::Grouping) {}

    PadPart Part(int number) const override;
    int Current() const override;
    int CountIn(int container) const override;
    int NumberIn(int container, int place) const override;
    int ContainerOf(int number) const override { return number >= FirstDay ? Month : Whole; }
    int PlaceOf(int number) const override { return number >= FirstDay ? number - FirstDay : number - 1; }
    int NumberAt(Point point) const override;
    void GoTo(int number) override;

    /// Of a column of the table.
    QString DayName(int column) const;
    /// Of a row of the table.
    QString WeekName(int week) const;

protected:
    QString Name() const override;
    QString Value() const override;
    AccessiblePart* Make(int number) const override;

private:
    DatePadWidget* Calendar() const { return dynamic_cast<DatePadWidget*>(Pad()); }
    PadPart DayPart(int cell) const;
    PadPart CaptionPart(int number) const;
};

} // namespace quillgrid::qt
