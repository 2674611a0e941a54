// Headings that fold, rows in the order of their captions, and cells for some eyes only.
#include "examples/common/Example.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QComboBox>
#include <QVBoxLayout>

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

enum Level : std::int32_t { Reception, Doctor, Owner };

void AddGroups(Quillgrid& grid) {
    grid.SetGrouped(true);
    grid.SetShowGroupBox(true);
    grid.AddGroup({.Key = "animal", .Caption = "Animal"});
    grid.Add({.Caption = "Name", .Value = "Bello"}); // into the group that was added last
    grid.Add({.Caption = "Weight", .Value = 23.5, .CellTemplate = qgctNumber})->SetUnit("kg");
    grid.AddGroup({.Key = "stay", .Caption = "Stay", .Expanded = false});
    grid.Add({.Caption = "Since", .Value = DateTime{*DayFromDate(2026, 3, 2)}, .CellTemplate = qgctDate});
    grid.AddGroup({.Key = "money", .Caption = "Money"});
    grid.Add({.Key = "invoice", .Caption = "Invoice", .Value = 310, .CellTemplate = qgctCurrency});
}

void SetLevels(Cell& invoice) {
    invoice.SetUserlevelVisible(Doctor);     // below, there is no such row
    invoice.SetUserLevelDataVisible(Doctor); // below, the row shows a lock
    invoice.SetUserLevelEnabled(Owner);      // below, the value cannot be changed
}

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Groups and levels"));
    auto* level = new QComboBox;
    level->addItems({QStringLiteral("Reception"), QStringLiteral("Doctor"), QStringLiteral("Owner")});
    auto* form = new QuillgridWidget;
    auto* column = new QVBoxLayout(&window);
    column->addWidget(level);
    column->addWidget(form, 1);
    Quillgrid& grid = form->grid();
    AddGroups(grid);
    SetLevels(*grid.Cells().Item("invoice"));

    const auto show = [&grid](int chosen) {
        grid.SetUserLevel(chosen);
        grid.Refresh();
    };
    QObject::connect(level, &QComboBox::currentIndexChanged, form, show);
    level->setCurrentIndex(Doctor);
    window.resize(360, 280);
    return example.Run(window, [&] {
        const int asDoctor = grid.RowCount();
        level->setCurrentIndex(Reception);
        return asDoctor == 6 && grid.RowCount() == 5;
    });
}
