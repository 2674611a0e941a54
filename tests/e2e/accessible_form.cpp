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
    form.grid().Cells().Item("name")->SetTooltipText("As in the passport");
    form.grid().Refresh();
    form.resize(400, 300);
    form.show();
    form.activateWindow();
    form.setFocus();
    return QApplication::exec();
}
