// The look of a form in a file, and a property reached by its name.
#include "examples/common/Example.h"

#include "quillgrid/hosts/qt/JsonPropertyBag.h"
#include "quillgrid/hosts/qt/QuillgridWidget.h"

#include <QTemporaryDir>

using namespace quillgrid;
using namespace quillgrid::qt;

namespace {

FileResult SaveLook(const Quillgrid& grid, const QString& path) {
    JsonPropertyBag bag;
    grid.WriteProperties(bag);
    return bag.Save(path);
}

/// A form that starts with what was saved; its cells are the program's.
FileResult LoadLook(Quillgrid& grid, const QString& path) {
    JsonPropertyBag bag;
    FileResult result = bag.Load(path);
    grid.ReadProperties(bag);
    return result;
}

} // namespace

int main(int argc, char** argv) {
    examples::Example example(argc, argv);
    QuillgridWidget form;
    form.setWindowTitle(QStringLiteral("Persistence"));
    Quillgrid& grid = form.grid();
    grid.Properties().Item("Style")->SetValue(static_cast<std::int32_t>(qgstPropertyList));
    grid.Properties().Item("Caption")->SetValue("Address");
    grid.Properties().Item("ShowCaption")->SetValue(true);
    grid.Add({.Key = "street", .Caption = "Street", .Value = "Hauptstraße 1"});
    grid.Add({.Key = "town", .Caption = "Town", .Value = "Wien"});
    grid.Refresh();
    form.resize(320, 160);
    return example.Run(form, [&] {
        const QTemporaryDir folder;
        const QString path = folder.filePath(QStringLiteral("look.json"));
        QuillgridWidget other;
        return SaveLook(grid, path) && LoadLook(other.grid(), path) && other.grid().Caption() == "Address" &&
               other.grid().Style() == grid.Style();
    });
}
