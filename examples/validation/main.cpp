// What a cell refuses, what the program refuses, and how the user is told.
#include "examples/common/Example.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QKeyEvent>

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

void AddCells(Quillgrid& grid) {
    const auto seats =
        grid.Add({.Key = "seats", .Caption = "&Seats", .Value = 2, .CellTemplate = qgctInteger});
    seats->SetMin(1);
    seats->SetMax(8); // 12 becomes 8
    const auto code = grid.Add({.Key = "code", .Caption = "Booking &code", .Value = "LH 42"});
    code->SetCharlist("ABCDEFGHIJKLMNOPQRSTUVWXYZ 0123456789"); // other keys beep
    code->SetCharCase(qgccUpper);
    code->SetMaxLength(8);
    const auto leaves = grid.Add({.Key = "leaves",
                                  .Caption = "&Leaves on",
                                  .Value = DateTime{*DayFromDate(2026, 7, 1)},
                                  .CellTemplate = qgctDate});
    leaves->SetAllowEmpty(false);
    grid.Refresh();
}

/// What the cell cannot read as its type it refuses; the program says that the user stays, and why.
void KeepUserInRefusedCells(QuillgridWidget& form) {
    QObject::connect(&form, &QuillgridWidget::validateCellError, &form,
                     [](Cell*, ValidationErrConstants, bool* cancel) { *cancel = true; });
    form.setMessageSource([](const Cell& cell, ValidationErrConstants code) {
        const bool badDay = cell.Key() == "leaves" && code == qgerrBadDate;
        return badDay ? QStringLiteral("A day of the calendar, please.") : QString(); // the control's own
    });
}

/// What only the program knows is asked when the cell has taken the value.
void RefuseSundays(QuillgridWidget& form) {
    QObject::connect(&form, &QuillgridWidget::validateCell, &form, [&form](Cell* cell, bool* cancel) {
        const Variant value = cell->Value();
        const auto* date = value.Get<DateTime>();
        if (cell->Key() != "leaves" || !date || form.grid().IsWorkDay(*date)) return;
        *cancel = true;
        form.showMessage(QStringLiteral("No boat leaves on that day."));
    });
}

void Type(QuillgridWidget& form, const QString& text) {
    for (const QChar letter : text + QChar(u'\r')) {
        QKeyEvent press(QEvent::KeyPress, letter == u'\r' ? Qt::Key_Return : Qt::Key_unknown, Qt::NoModifier,
                        letter);
        QApplication::sendEvent(form.focusProxy(), &press);
    }
}

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    QuillgridWidget form;
    form.setWindowTitle(QStringLiteral("Validation"));
    form.grid().SetLanguage(qglgEnglish);
    AddCells(form.grid());
    KeepUserInRefusedCells(form);
    RefuseSundays(form);
    form.resize(360, 180);
    form.grid().Cells().Item("leaves")->SetFocus();
    return example.Run(form, [&] {
        form.setFocus();
        Type(form, QStringLiteral("31/2/2026"));
        const bool refused = form.grid().Cell()->Key() == "leaves";
        return refused && form.shownMessage() == u"A day of the calendar, please.";
    });
}
