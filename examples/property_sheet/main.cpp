// The properties of one form, edited in another one.
#include "examples/property_sheet/PictureOptions.h"
#include "examples/property_sheet/SheetWindow.h"

#include <QApplication>
#include <QPixmap>

#include <cstdio>

using namespace quillgrid::example;

namespace {

int WritePicture(SheetWindow& window, const QString& path) {
    window.activateWindow();
    QApplication::processEvents();
    window.changeSomeProperties();
    QApplication::processEvents();
    if (window.grab().save(path, "PNG")) return 0;
    std::fprintf(stderr, "property_sheet: the picture %s cannot be written\n", qUtf8Printable(path));
    return 1;
}

} // namespace

int main(int argc, char** argv) {
    const auto options = PictureOptions::Parse(argc, argv);
    if (!options) {
        std::fputs(PictureOptions::Usage(), stderr);
        return 2;
    }
    options->PrepareSurroundings();
    QApplication application(argc, argv);
    options->ChooseLook();
    SheetWindow window;
    window.show();
    return options->Picture.isEmpty() ? QApplication::exec() : WritePicture(window, options->Picture);
}
