// The control in its looks: a window to click through them, or their pictures.
#include "examples/gallery/GalleryPage.h"
#include "examples/gallery/PictureFile.h"
#include "examples/gallery/ScenePicture.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QListWidget>
#include <QScrollArea>

#include <cstdio>

using namespace quillgrid::example;

namespace {

constexpr const char* Usage =
    "usage: gallery                          shows the forms\n"
    "       gallery --pictures FOLDER SCALE  writes the pictures of a scale, 1 or 2\n"
    "       gallery --page FOLDER            prints the page; FOLDER has the pictures\n"
    "       gallery --system SCALE           prints what pictures of a scale depend on\n";

int WritePictures(const QString& folder, int scale) {
    QDir().mkpath(folder);
    for (const Scene& scene : AllScenes()) {
        const QString path = folder + QLatin1Char('/') + scene.Name + QLatin1String(".png");
        if (scene.Scale != scale || WritePicture(TakePicture(scene), path)) continue;
        std::fprintf(stderr, "gallery: %s cannot be written\n", qUtf8Printable(path));
        return 1;
    }
    return 0;
}

int ShowForms() {
    QWidget window;
    auto* layout = new QHBoxLayout(&window);
    auto* names = new QListWidget;
    auto* area = new QScrollArea;
    for (const Scene& scene : AllScenes())
        names->addItem(scene.Name);
    names->setMaximumWidth(200);
    layout->addWidget(names);
    layout->addWidget(area, 1);
    QObject::connect(names, &QListWidget::currentRowChanged, area, [area](int row) {
        if (row >= 0) area->setWidget(MakeWindow(AllScenes()[static_cast<std::size_t>(row)]).release());
    });
    names->setCurrentRow(0);
    window.resize(900, 700);
    window.show();
    return QApplication::exec();
}

int Print(const QString& text) {
    std::fputs(qUtf8Printable(text), stdout);
    return std::fflush(stdout) == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const QByteArray mode = argc > 1 ? argv[1] : "";
    const bool pictures = mode == "--pictures" && argc == 4;
    const bool page = mode == "--page" && argc == 3;
    const bool system = mode == "--system" && argc == 3;
    if (argc > 1 && !pictures && !page && !system) {
        std::fputs(Usage, stderr);
        return 2;
    }
    const int scale = pictures || system ? qMax(1, QByteArray(argv[argc - 1]).toInt()) : 1;
    if (argc > 1) PrepareForPictures(scale);
    QApplication application(argc, argv);
    if (argc == 1) return ShowForms();
    UsePictureLook();
    if (page) return Print(GalleryPage(QString::fromLocal8Bit(argv[2])));
    if (system) return Print(DrawingSystem() + QLatin1Char('\n'));
    return WritePictures(QString::fromLocal8Bit(argv[2]), scale);
}
