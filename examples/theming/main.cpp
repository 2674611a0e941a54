// The same cells as a form in the desktop's colours and as a property list in colours of its own.
#include "examples/common/Example.h"

#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QHBoxLayout>

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

void AddCells(Quillgrid& grid) {
    grid.SetLanguage(qglgEnglish);
    grid.Add({.Caption = "Engine", .Value = "Diesel"});
    grid.Add({.Caption = "Power", .Value = 81, .CellTemplate = qgctInteger})->SetUnit("kW");
    grid.Add({.Caption = "Sold", .Value = 40, .CellTemplate = qgctPercent});
    grid.Add({.Caption = "Paint",
              .Value = Variant(static_cast<std::int32_t>(Rgb(0, 0, 128))),
              .CellTemplate = qgctColor});
    grid.Refresh();
}

void UsePaperLook(Quillgrid& grid) {
    grid.SetStyle(qgstPropertyList);
    grid.SetUseSystemColors(false);
    grid.SetBackColor(Rgb(250, 246, 235));
    grid.SetCellBackColor(Rgb(255, 253, 247));
    grid.SetCellForeColor(Rgb(60, 40, 20));
    grid.SetLabelBackColor(Rgb(250, 246, 235));
    grid.SetLabelForeColor(Rgb(110, 80, 50));
    grid.SetLabelBackColorFocus(Rgb(176, 98, 48));
    grid.SetLabelForeColorFocus(Rgb(255, 255, 255));
    grid.SetGridcolor(Rgb(226, 214, 190));
    grid.SetFillColor(Rgb(176, 98, 48));
}

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("Theming"));
    auto* desktop = new QuillgridWidget;
    auto* paper = new QuillgridWidget;
    auto* row = new QHBoxLayout(&window);
    row->addWidget(desktop);
    row->addWidget(paper);
    AddCells(desktop->grid());
    UsePaperLook(paper->grid());
    AddCells(paper->grid());
    window.resize(560, 190);
    return example.Run(window, [&] {
        const QColor ground = paper->grab().toImage().pixelColor(paper->width() - 8, paper->height() - 8);
        return ground == QColor(255, 253, 247) || ground == QColor(250, 246, 235);
    });
}
