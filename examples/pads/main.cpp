// Lists, calendars and the calculator below their cells, and dialogs of the desktop behind a button.
#include "examples/common/Example.h"

#include "quillgrid/grid/Keys.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"
#include "quillgrid/hosts/qt/ReadyDropDowns.h"

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

void AddCells(Quillgrid& grid) {
    const auto berth = grid.Add({.Key = "berth", .Caption = "&Berth", .CellTemplate = qgctlist});
    berth->Listitems().Add({.Text = "Inner harbour", .ItemData = 10});
    berth->Listitems().Add({.Text = "Outer harbour", .ItemData = 20});
    berth->SetValue(20); // the data of an entry chooses it
    const auto from = grid.Add({.Key = "from",
                                .Caption = "&From",
                                .Value = DateTime{*DayFromDate(2026, 12, 24)},
                                .CellTemplate = qgctDate});
    from->SetMin(DateTime{*DayFromDate(2026, 1, 1)});
    from->SetAllowSunday(false); // not in the calendar either
    grid.SetAutoHolidays(qgahdGermany);
    const auto fee = grid.Add({.Key = "fee", .Caption = "F&ee", .Value = 116, .CellTemplate = qgctCurrency});
    fee->SetButton(qgbtCalc);
    grid.Add({.Key = "map", .Caption = "&Map", .CellTemplate = qgctFile});
    grid.Refresh();
}

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    QuillgridWidget form;
    form.setWindowTitle(QStringLiteral("Pads"));
    AddCells(form.grid());
    offerFiles(form, QStringLiteral("map")); // a file dialog behind the button of this cell
    form.resize(340, 200);
    return example.Run(form, [&] {
        const auto berth = form.grid().Cells().Item("berth");
        const bool chosen = berth->Text() == "Outer harbour" && berth->Value() == Variant(20);
        berth->SetFocus();
        form.grid().KeyDown(KeyF4, 0);
        const bool shown = form.grid().IsPadShown();
        form.grid().HidePads();
        return chosen && shown && !form.grid().IsPadShown();
    });
}
