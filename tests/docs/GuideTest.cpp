// Samples of the guide that no example has. docs/guide.md quotes them line by line; see
// tools/check_documents.
#include "quillgrid/base/ControlError.h"
#include "quillgrid/calendar/WorkCalendar.h"
#include "quillgrid/hosts/qt/CalculatorWidget.h"
#include "quillgrid/hosts/qt/CalendarWidget.h"
#include "quillgrid/hosts/qt/ModelBinding.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"
#include "quillgrid/hosts/qt/SettingsPropertyBag.h"
#include "quillgrid/hosts/qtsql/RecordBinding.h"

#include <QSettings>
#include <QSqlField>
#include <QStandardItemModel>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

DateTime Day(int year, int month, int day) {
    return {*DayFromDate(year, month, day)};
}

TEST(Guide, ValuesComeBackInTheTypesOfTheirTemplates) {
    QuillgridWidget form;
    Quillgrid& grid = form.grid();
    grid.Clear();
    grid.Add({.Key = "fee", .Value = "12.50", .CellTemplate = qgctCurrency});
    grid.Add({.Key = "member", .Value = true, .CellTemplate = qgctboolean});

    const Variant fee = grid.Cells().Item("fee")->Value();
    if (const auto* amount = fee.Get<Currency>()) {
        const double rounded = amount->ToDouble(); // four decimals, exact as a Currency
        EXPECT_EQ(rounded, 12.5);
    } else {
        // empty: the value is Null
        ADD_FAILURE();
    }

    EXPECT_EQ(grid.Cells().Item("member")->Value(), Variant(std::int16_t{-1}));
    bool said = false;
    try {
        grid.Add({.Key = "fee", .Caption = "Fee"});
    } catch (const ControlError& error) {
        // 20099, "Quillgrid.add method.Quillgrid": the key is taken, and nothing was added
        qWarning("%s (%d)", error.what(), error.Code());
        said = error.Code() == 20099;
    }
    EXPECT_TRUE(said);
    EXPECT_EQ(grid.Cells().Count(), 2);
}

TEST(Guide, HolidaysOfOnesOwn) {
    WorkCalendar calendar;
    calendar.SetAutoHolidays(qgahdAustria);
    calendar.Holidays()->Add({.Key = "Founders' day", .Month = 9, .Day = 15});
    calendar.Holidays()->Add({.Key = "Summer closing", .DayType = qghtDaysFromEaster, .Shift = 100});
    calendar.ResolveHolidays(Day(2026, 9, 1));

    const DateTime due = calendar.WorkDayAdd(Day(2026, 9, 14), 1); // not the 15th, which is Founders' day
    EXPECT_EQ(due, Day(2026, 9, 16));
    EXPECT_EQ(calendar.WorkDayDiff(Day(2026, 9, 14), Day(2026, 9, 18)), 4);
}

TEST(Guide, DateRanges) {
    CalendarWidget calendar;
    calendar.setMinDate(QDate(2026, 1, 1));
    calendar.setAutoHolidays(CalendarWidget::SwissHolidays);
    calendar.pad().TimeZones().Add({.Key = "season",
                                    .FirstDate = Day(2026, 6, 1),
                                    .LastDate = Day(2026, 8, 31),
                                    .BackColor = Rgb(255, 236, 200)});
    calendar.pad().Refresh();

    EXPECT_EQ(calendar.pad().TimeZone(Day(2026, 7, 14)), "season");
}

TEST(Guide, FormulaKeys) {
    CalculatorWidget calculator;
    // F5, until the calculator is laid out anew
    calculator.pad().DefineFormula(1, "X*1.19", Variant::Null(), "Add the tax");

    calculator.pad().SetValue(100);
    std::int32_t key = 116; // F5
    calculator.pad().KeyDown(key, 0);
    calculator.pad().KeyUp(key, 0);
    EXPECT_EQ(calculator.pad().Value(), Variant(*Currency::FromDouble(119)));
}

TEST(Guide, SettingsOfTheDesktop) {
    const QTemporaryDir folder;
    QSettings settings(folder.filePath(QStringLiteral("app.ini")), QSettings::IniFormat);
    QuillgridWidget form;
    form.setCaption(QStringLiteral("Boats"));

    SettingsPropertyBag bag(settings, QStringLiteral("forms/boat"));
    form.grid().WriteProperties(bag);

    EXPECT_EQ(settings.value(QStringLiteral("forms/boat/Caption")).toString(), QStringLiteral("Boats"));
}

TEST(Guide, BindingsToARowAndARecord) {
    QStandardItemModel model(2, 2);
    model.setHorizontalHeaderLabels({QStringLiteral("Name"), QStringLiteral("Berth")});
    QuillgridWidget form;
    form.grid().Clear();

    ModelBinding rows(&form);
    rows.setModel(&model);
    rows.addCells(); // one for each column
    form.grid().Refresh();
    rows.toFirst();

    form.grid().Cells().Item("Name")->SetText("Gudrun");
    EXPECT_TRUE(rows.submit());
    EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("Gudrun"));

    QSqlRecord boat;
    boat.append(QSqlField(QStringLiteral("price"), QMetaType(QMetaType::Double)));
    QuillgridWidget sheet;
    sheet.grid().Clear();

    RecordBinding record(&sheet);
    record.setRecord(boat);
    record.addCells();
    sheet.grid().Refresh();

    EXPECT_FALSE(record.isDirty() || record.isModified());
}

} // namespace
} // namespace quillgrid::qt
