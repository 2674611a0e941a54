// A form that the form designer saved, in a program: what is set there arrives, and the program adds the
// cells.
#include "ui_sample.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace quillgrid::qt {
namespace {

TEST(CompiledForm, TakesItsCellsFromTheProgram) {
    QWidget window;
    Ui::AddressForm ui;
    ui.setupUi(&window);
    EXPECT_EQ(ui.form->caption(), QStringLiteral("Address"));
    EXPECT_EQ(ui.form->gridStyle(), QuillgridWidget::FormStyle);
    EXPECT_EQ(ui.form->tabPolicy(), QuillgridWidget::TabWraps);
    EXPECT_EQ(ui.form->cellFont().pointSize(), 11);
    EXPECT_EQ(ui.calendar->currentDate(), QDate(2026, 2, 14));
    EXPECT_EQ(ui.calendar->firstDayOfWeek(), CalendarWidget::Sunday);
    Quillgrid& grid = ui.form->grid();
    EXPECT_EQ(grid.Cells().Count(), 4); // samples
    grid.Clear();
    grid.Add({.Key = "city", .Caption = "City", .Value = "Ulm"});
    grid.Refresh();
    window.show();
    QApplication::processEvents();
    EXPECT_EQ(grid.RowCount(), 1);
    EXPECT_EQ(ui.form->cellCount(), 1);
}

} // namespace
} // namespace quillgrid::qt

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
