// The program of the README, to the letter.
#include <QApplication>
#include <quillgrid/hosts/qt/QuillgridWidget.h>

int main(int argc, char* argv[]) {
    using namespace quillgrid;
    QApplication app(argc, argv);
    qt::QuillgridWidget form;
    form.grid().Add({.Key = "name", .Caption = "&Name", .Value = "Ada"});
    form.grid().Add({.Key = "born", .Caption = "&Born", .Value = "1815-12-10", .CellTemplate = qgctDate});
    form.grid().Add({.Key = "fee", .Caption = "&Fee", .Value = 1250, .CellTemplate = qgctCurrency});
    form.grid().Refresh();
    form.show();
    return app.exec();
}
