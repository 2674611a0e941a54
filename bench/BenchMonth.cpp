// A month on the screen, beside Qt's own calendar.
#include "quillgrid/hosts/qt/CalendarWidget.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QCalendarWidget>
#include <QImage>

namespace quillgrid::bench {

namespace {

/// Room for the larger of both.
constexpr QSize Room(320, 260);

template <typename Calendar>
void Show(Calendar& calendar) {
    calendar.resize(Room);
    calendar.show();
    QApplication::processEvents();
    calendar.repaint();
}

/// All of it, whoever paints the parts.
template <typename Calendar>
void Month_Repaint(benchmark::State& state) {
    Calendar calendar;
    Show(calendar);
    QImage picture(Room, QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state)
        calendar.render(&picture);
}

void StepMonth(qt::CalendarWidget& calendar, int by) {
    calendar.setCurrentDate(calendar.currentDate().addMonths(by));
}

void StepMonth(QCalendarWidget& calendar, int by) {
    calendar.setSelectedDate(calendar.selectedDate().addMonths(by));
}

/// Forth and back, and what that paints.
template <typename Calendar>
void Month_Step(benchmark::State& state) {
    Calendar calendar;
    Show(calendar);
    int by = 1;
    for (auto _ : state) {
        StepMonth(calendar, by);
        QApplication::processEvents();
        by = -by;
    }
}

BENCHMARK_TEMPLATE(Month_Repaint, qt::CalendarWidget)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(Month_Repaint, QCalendarWidget)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(Month_Step, qt::CalendarWidget)->Unit(benchmark::kMicrosecond);
BENCHMARK_TEMPLATE(Month_Step, QCalendarWidget)->Unit(benchmark::kMicrosecond);

} // namespace

} // namespace quillgrid::bench
