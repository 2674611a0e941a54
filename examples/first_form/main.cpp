// Three cells and a button that reads them.
#include "examples/common/Example.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"
#include "quillgrid/hosts/qt/VariantConversion.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

void AddCells(Quillgrid& grid) {
    grid.Add({.Key = "name", .Caption = "&Name", .Value = "Ada Lovelace"});
    grid.Add({.Key = "born",
              .Caption = "&Born",
              .Value = DateTime{*DayFromDate(1815, 12, 10)},
              .CellTemplate = qgctDate});
    grid.Add({.Key = "fee", .Caption = "&Fee", .Value = 1250, .CellTemplate = qgctCurrency});
    grid.Refresh();
}

QString Summary(Quillgrid& grid) {
    const QString name = QString::fromStdString(grid.Cells().Item("name")->Text());
    const QDate born = ToQVariant(grid.Cells().Item("born")->Value()).toDate();
    const Variant fee = grid.Cells().Item("fee")->Value();
    const Currency* amount = fee.Get<Currency>(); // null when the cell is empty
    return QStringLiteral("%1, born in %2, gets %3")
        .arg(name)
        .arg(born.year())
        .arg(QString::fromStdString(amount ? amount->ToText() : "nothing"));
}

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("First form"));
    auto* form = new QuillgridWidget;
    auto* read = new QPushButton(QStringLiteral("&Read"));
    auto* said = new QLabel;
    auto* column = new QVBoxLayout(&window);
    column->addWidget(form, 1);
    column->addWidget(read);
    column->addWidget(said);
    AddCells(form->grid());

    QObject::connect(read, &QPushButton::clicked, form, [form, said] {
        if (form->commitEdit()) said->setText(Summary(form->grid()));
    });
    window.resize(360, 220);
    return example.Run(window, [&] {
        form->grid().Cells().Item("born")->SetText("3.5.1820");
        read->click();
        return said->text() == u"Ada Lovelace, born in 1820, gets 1250";
    });
}
