#pragma once

#include "quillgrid/hosts/qt/SavedProperties.h"

#ifndef Q_MOC_RUN // moc cannot read the concepts of the standard headers
#include "quillgrid/calendar/QGCalendar.h"
#endif

namespace quillgrid::qt {

/// The properties of a calendar that are saved with it, as Qt's: each has a reset to its default and a signal
/// `...Changed()`, which comes once for every change, also for one that `pad()` was told. What is set here
/// shows when the program returns to its event loop; `pad().Refresh()` shows it at once.
class QUILLGRID_EXPORT CalendarProperties : public SavedProperties {
    Q_OBJECT

public:
    /// Kept for a menu of the right mouse button.
    QUILLGRID_PROPERTY(bool, showMenu, ShowMenu, ShowMenu)
    /// The caption has buttons that step through months and years.
    QUILLGRID_PROPERTY(bool, showButtons, ShowButtons, ShowButtons)
    /// The first day that may be picked. Like the next it binds the next time that a date is set.
    QUILLGRID_PROPERTY(QDate, minDate, MinDate, MinDate)
    /// The last day that may be picked.
    QUILLGRID_PROPERTY(QDate, maxDate, MaxDate, MaxDate)
    /// The day with which a week begins.
    QUILLGRID_PROPERTY(DayOfWeek, firstDayOfWeek, FirstDayOfWeek, FirstDayOfWeek)
    /// The week with which a year begins.
    QUILLGRID_PROPERTY(FirstWeekOfYear, firstWeekOfYear, FirstWeekOfYear, FirstWeekOfYear)
    /// Sundays may be picked.
    QUILLGRID_PROPERTY(bool, allowSunday, AllowSunday, AllowSunday)
    /// Saturdays may be picked.
    QUILLGRID_PROPERTY(bool, allowSaturday, AllowSaturday, AllowSaturday)
    /// Holidays may be picked.
    QUILLGRID_PROPERTY(bool, allowHoliday, AllowHoliday, AllowHoliday)
    /// Sundays count as work days.
    QUILLGRID_PROPERTY(bool, workSunday, WorkSunday, WorkSunday)
    /// Saturdays count as work days.
    QUILLGRID_PROPERTY(bool, workSaturday, WorkSaturday, WorkSaturday)
    /// Holidays count as work days.
    QUILLGRID_PROPERTY(bool, workHoliday, WorkHoliday, WorkHoliday)
    /// The country whose holidays the calendar knows.
    QUILLGRID_PROPERTY(HolidayPreset, autoHolidays, AutoHolidays, AutoHolidays)
    /// Which of the German holidays are on: one "1" or "0" for each, in their order; what is missing is on.
    QUILLGRID_PROPERTY(QString, configGermany, ConfigGermany, ConfigGermany)
    /// The same of the Austrian ones.
    QUILLGRID_PROPERTY(QString, configAustria, ConfigAustria, ConfigAustria)
    /// The same of the Swiss ones.
    QUILLGRID_PROPERTY(QString, configSwitzerland, ConfigSwitzerland, ConfigSwitzerland)
    /// The same of the international ones.
    QUILLGRID_PROPERTY(QString, configEurope, ConfigEurope, ConfigEurope)
    /// Behind the days. Like every colour here it is the default when it is set to an invalid one; colours
    /// that cannot be read on what they stand on are darkened or lightened on the screen.
    QUILLGRID_PROPERTY(QColor, backColor, BackColor, BackColor)
    /// Days.
    QUILLGRID_PROPERTY(QColor, foreColor, ForeColor, ForeColor)
    /// Sundays.
    QUILLGRID_PROPERTY(QColor, foreColorSunday, ForeColorSunday, ForeColorSunday)
    /// Holidays.
    QUILLGRID_PROPERTY(QColor, foreColorHoliday, ForeColorHoliday, ForeColorHoliday)
    /// Saturdays.
    QUILLGRID_PROPERTY(QColor, foreColorSaturday, ForeColorSaturday, ForeColorSaturDay)
    /// Behind Sundays.
    QUILLGRID_PROPERTY(QColor, backColorSunday, BackColorSunday, BackColorSunday)
    /// Behind Saturdays.
    QUILLGRID_PROPERTY(QColor, backColorSaturday, BackColorSaturday, BackColorSaturday)
    /// Behind the numbers of the weeks.
    QUILLGRID_PROPERTY(QColor, backColorWeek, BackColorWeek, BackColorWeek)
    /// Behind the names of the weekdays, and lines.
    QUILLGRID_PROPERTY(QColor, backColorGrid, BackColorGrid, BackColorGrid)
    /// The numbers of the weeks.
    QUILLGRID_PROPERTY(QColor, foreColorWeek, ForeColorWeek, ForeColorWeek)
    /// The names of the weekdays.
    QUILLGRID_PROPERTY(QColor, foreColorDaynames, ForeColorDaynames, ForeColorDaynames)

protected:
    CalendarProperties(QWidget* parent, Qt::WindowFlags flags)
        : SavedProperties(staticMetaObject, parent, flags) {}

private:
    virtual QGCalendar& Control() const = 0;
    void WriteControl(PropertyBag& bag) const override;
    void ShowControl() override;
};

} // namespace quillgrid::qt
