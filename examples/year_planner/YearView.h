#pragma once

#include "quillgrid/hosts/qt/CalendarWidget.h"

#include <array>

namespace quillgrid::example {

/// Twelve months of a year, one of whose days is the current one.
class YearView : public QWidget {
    Q_OBJECT

public:
    static constexpr int FirstYear = 1601, LastYear = 9998;

    explicit YearView(QWidget* parent = nullptr);

    int year() const { return year_; }
    /// Years outside of what the calendar holds become the nearest one in it.
    void setYear(int year);
    void setHolidays(AutoHolidayConstants preset);
    QDate currentDate() const { return date_; }
    void setCurrentDate(QDate date);
    /// The month, 1 to 12.
    qt::CalendarWidget& month(int number) { return *months_[static_cast<std::size_t>(number) - 1]; }

    /// One page in landscape; false when the file cannot be written.
    bool printPdf(const QString& path);

Q_SIGNALS:
    void dateChange(QDate date);

private:
    qt::CalendarWidget* AddMonth(int number);
    void ShowYear();

    std::array<qt::CalendarWidget*, 12> months_{};
    int year_;
    QDate date_;
};

} // namespace quillgrid::example
