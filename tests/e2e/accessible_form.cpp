// A form to be read over the accessibility bus: one cell of each kind.
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QApplication>

int main(int argc, char* argv[]) {
    using namespace quillgrid;
    QApplication app(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("accessible_form"));
    qt::QuillgridWidget form;
    form.setMessageDuration(0);
    form.grid().SetLanguage(qglgEnglish);
    form.grid().Add({.Key = "name", .Caption = "&Name", .Value = "Ada"});
    form.grid().Add({.Key = "pieces", .Caption = "Pieces", .Value = 5, .CellTemplate = qgctSpin});
    form.grid().Add(
        {.Key = "secret", .Caption = "Password", .Value = "geheim", .CellTemplate = qgctPassword});
    form.grid().Add({.Key = "paid", .Caption = "Paid", .Value = true, .CellTemplate = qgctboolean});
    form.grid().Add({.Key = "title", .Caption = "Title", .CellTemplate = qgctSalutation});
    form.grid().Add({.Key = "due", .Caption = "Due", .CellTemplate = qgctDate});
    const auto city = form.grid().Add({.Key = "city", .Caption = "City", .CellTemplate = qgctlist});
    city->Listitems().Clear();
    for (const char* name : {"Aachen", "Bonn", "Celle"})
        city->Listitems().Add({.Text = name});
    city->SetListIndex(2);
    form.grid()
        .Add({.Key = "day", .Caption = "Day", .Value = Variant(DateTime{46143, 0}), .CellTemplate = qgctDate})
        ->SetButton(qgbtClock);
    form.grid()
        .Add({.Key = "sum", .Caption = "Sum", .Value = 12, .CellTemplate = qgctCurrency})
        ->SetButton(qgbtCalc);
    form.grid().Add({.Key = "more", .Caption = "More", .Value = false, .CellTemplate = qgctboolean});
    form.grid().SetAutoHolidays(qgahdGermany);
    // "More" brings rows and takes them away: a few, then very many.
    int rows = 0;
    form.grid().Change.Listen([&form, &rows](Cell& cell) {
        if (cell.Key() != "more") return;
        const int more = rows == 0 ? 2 : 100'000;
        for (const int last = rows + more; rows < last; ++rows)
            form.grid().Cells().Add({.Caption = "Extra"});
        form.grid().Refresh();
    });
    form.grid().Cells().Item("name")->SetTooltipText("As in the passport");
    form.grid().Refresh();
    form.resize(400, 400);
    form.show();
    form.activateWindow();
    form.setFocus();
    return QApplication::exec();
}
