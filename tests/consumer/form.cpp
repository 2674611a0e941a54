// A form on a widget that is painted, an error of the core caught here, and a record of Qt's SQL module.
#include <quillgrid/hosts/qt/JsonPropertyBag.h>
#include <quillgrid/hosts/qt/QuillgridWidget.h>
#include <quillgrid/hosts/qtsql/SqlRecord.h>

#include <QApplication>
#include <QPixmap>

#include <cstdio>

namespace {

bool RefusesSecondKey(quillgrid::Quillgrid& grid) {
    try {
        grid.Add({.Key = "fee", .Caption = "&Fee"});
        return false;
    } catch (const quillgrid::ControlError& error) {
        std::printf("%d: %s\n", error.Code(), error.what());
        return true;
    }
}

} // namespace

int main(int argc, char* argv[]) {
    QApplication app(argc, argv);
    quillgrid::qt::QuillgridWidget form;
    quillgrid::Quillgrid& grid = form.grid();
    grid.Add({.Key = "name", .Caption = "&Name", .Value = "Ada"});
    grid.Add({.Key = "fee", .Caption = "&Fee", .Value = 1250, .CellTemplate = quillgrid::qgctCurrency});
    grid.Refresh();

    quillgrid::qt::JsonPropertyBag bag;
    grid.SetCaption("Address");
    grid.WriteProperties(bag);
    const bool saved = bag.ToText().contains("Address");
    const bool painted = !form.grab().isNull();
    const bool signalled = form.metaObject()->indexOfSignal("beep()") >= 0;
    return RefusesSecondKey(grid) && saved && painted && signalled ? 0 : 1;
}
