// A record of a database in a form: loaded, changed, and only what changed written back.
#include "examples/common/Example.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"
#include "quillgrid/hosts/qt/VariantConversion.h"
#include "quillgrid/hosts/qtsql/SqlRecord.h"

#include <QPushButton>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVBoxLayout>

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

void MakeDatabase() {
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setDatabaseName(QStringLiteral(":memory:"));
    database.open();
    QSqlQuery query;
    query.exec(QStringLiteral("CREATE TABLE boats (id INTEGER, name TEXT, built DATE, price NUMERIC)"));
    query.exec(QStringLiteral("INSERT INTO boats VALUES (1, 'Gudrun', '1931-05-03', 18500)"));
}

void AddCells(Quillgrid& grid) {
    grid.Add({.Key = "name", .Caption = "&Name"});
    grid.Add({.Key = "built", .Caption = "&Built", .CellTemplate = qgctDate});
    grid.Add({.Key = "price", .Caption = "&Price", .CellTemplate = qgctCurrency});
}

void Load(Quillgrid& grid) {
    QSqlQuery query(QStringLiteral("SELECT name, built, price FROM boats WHERE id = 1"));
    if (!query.next()) return;
    grid.LoadRecord(SqlRecord(query.record())); // each cell from the field of its key's name
    grid.Refresh();
}

bool Save(QuillgridWidget& form) {
    if (!form.commitEdit()) return false; // what is being typed was refused
    for (const auto& cell : form.grid().Cells()) {
        if (!cell->Changed()) continue;
        QSqlQuery query;
        query.prepare(
            QStringLiteral("UPDATE boats SET %1 = ? WHERE id = 1").arg(QString::fromStdString(cell->Key())));
        query.addBindValue(ToQVariant(cell->Value()));
        if (!query.exec()) return false;
    }
    form.grid().Update(); // these values are what Undo returns to from now on
    return true;
}

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    MakeDatabase();
    QWidget window;
    window.setWindowTitle(QStringLiteral("A record"));
    auto* form = new QuillgridWidget;
    auto* save = new QPushButton(QStringLiteral("&Save"));
    auto* column = new QVBoxLayout(&window);
    column->addWidget(form, 1);
    column->addWidget(save);
    AddCells(form->grid());
    Load(form->grid());
    QObject::connect(save, &QPushButton::clicked, form, [form] { Save(*form); });
    window.resize(340, 200);
    return example.Run(window, [&] {
        form->grid().Cells().Item("price")->SetText("17250");
        save->click();
        QSqlQuery query(QStringLiteral("SELECT price, built FROM boats"));
        return query.next() && query.value(0).toDouble() == 17250 &&
               query.value(1).toString() == u"1931-05-03";
    });
}
