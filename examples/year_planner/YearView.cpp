#include "examples/year_planner/YearView.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QPainter>
#include <QPdfWriter>

#include <algorithm>

namespace quillgrid::example {

namespace {

constexpr int Columns = 4;

DateTime DayOf(int year, int month, int day) {
    return {DayFromDate(year, month, day).value_or(FirstDay)};
}

} // namespace

YearView::YearView(QWidget* parent)
    : QWidget(parent), year_(QDate::currentDate().year()), date_(QDate::currentDate()) {
    auto* layout = new QGridLayout(this);
    layout->setSpacing(8);
    for (int number = 1; number <= 12; ++number)
        layout->addWidget(AddMonth(number), (number - 1) / Columns, (number - 1) % Columns);
    ShowYear();
}

qt::CalendarWidget* YearView::AddMonth(int number) {
    auto* widget = new qt::CalendarWidget;
    months_[static_cast<std::size_t>(number) - 1] = widget;
    widget->pad().SetShowButtons(false);
    connect(widget, &qt::CalendarWidget::dateChange, this, &YearView::setCurrentDate);
    connect(widget, &qt::CalendarWidget::dateClick, this, &YearView::setCurrentDate);
    return widget;
}

/// Each calendar keeps to its month, and the one with the current day marks it.
void YearView::ShowYear() {
    for (int number = 1; number <= 12; ++number) {
        qt::CalendarWidget& widget = month(number);
        const QSignalBlocker quiet(widget);
        const bool current = date_.year() == year_ && date_.month() == number;
        widget.pad().SetMinDate(DayOf(year_, number, 1));
        widget.pad().SetMaxDate(DayOf(year_, number, DaysInMonth(year_, number)));
        widget.pad().SetMarksDate(current);
        widget.setCurrentDate(current ? date_ : QDate(year_, number, 1));
        widget.pad().Refresh();
    }
}

void YearView::setYear(int year) {
    year_ = std::clamp(year, FirstYear, LastYear);
    ShowYear();
}

void YearView::setHolidays(AutoHolidayConstants preset) {
    for (qt::CalendarWidget* widget : months_) {
        widget->pad().SetAutoHolidays(preset);
        widget->pad().Refresh();
    }
}

void YearView::setCurrentDate(QDate date) {
    if (!date.isValid() || date == date_) return;
    date_ = date;
    setYear(date.year());
    Q_EMIT dateChange(date_);
}

bool YearView::printPdf(const QString& path) {
    QPdfWriter writer(path);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageOrientation(QPageLayout::Landscape);
    writer.setTitle(QString::number(year_));
    QPainter painter;
    if (!painter.begin(&writer)) return false;
    const QRect page = painter.viewport();
    const double scale =
        std::min(double(page.width()) / double(width()), double(page.height()) / double(height()));
    painter.translate((page.width() - width() * scale) / 2, (page.height() - height() * scale) / 2);
    painter.scale(scale, scale);
    render(&painter, {}, {}, QWidget::DrawChildren);
    return painter.end() && QFileInfo(path).size() > 0;
}

} // namespace quillgrid::example
