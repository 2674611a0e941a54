#include "examples/year_planner/YearView.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillgrid::example {
namespace {

int MarkedMonths(YearView& view) {
    int marked = 0;
    for (int number = 1; number <= 12; ++number)
        marked += view.month(number).pad().View().Current != 0 ? 1 : 0;
    return marked;
}

TEST(YearPlanner, OneDayOfTheYearIsMarkedAndEveryMonthKeepsToItself) {
    YearView view;
    view.show();
    view.setCurrentDate({2024, 2, 29});
    EXPECT_EQ(view.month(2).currentDate(), QDate(2024, 2, 29));
    EXPECT_EQ(MarkedMonths(view), 1);
    view.month(5).setCurrentDate({2024, 5, 9});
    EXPECT_EQ(view.currentDate(), QDate(2024, 5, 9));
    EXPECT_EQ(view.month(5).pad().View().Current, 9);
    EXPECT_EQ(MarkedMonths(view), 1);
    view.month(5).setCurrentDate({2024, 7, 1});
    EXPECT_EQ(view.currentDate(), QDate(2024, 5, 31));
    view.setYear(20000);
    EXPECT_EQ(view.year(), YearView::LastYear);
    EXPECT_EQ(MarkedMonths(view), 0);
}

TEST(YearPlanner, HolidaysAreThoseOfTheCountry) {
    YearView view;
    view.setYear(2026);
    const auto ink = [&view](int month, int day) { return view.month(month).pad().View().DayAt(day).Ink; };
    view.setHolidays(qgahdAustria);
    EXPECT_EQ(ink(10, 26), ink(10, 25)); // the national holiday, a Monday, beside a Sunday
    view.setHolidays(qgahdGermany);
    EXPECT_NE(ink(10, 26), ink(10, 25));
}

TEST(YearPlanner, PrintsAPageOrSaysThatItCannot) {
    const QTemporaryDir folder;
    YearView view;
    view.show();
    const QString path = folder.filePath(QStringLiteral("year.pdf"));
    ASSERT_TRUE(view.printPdf(path));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray page = file.readAll();
    EXPECT_TRUE(page.startsWith("%PDF"));
    EXPECT_TRUE(page.contains("/Count 1"));
    EXPECT_GT(page.size(), 10'000);
    EXPECT_FALSE(view.printPdf(folder.filePath(QStringLiteral("missing/year.pdf"))));
}

} // namespace
} // namespace quillgrid::example
