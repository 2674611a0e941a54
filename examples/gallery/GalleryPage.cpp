#include "examples/gallery/GalleryPage.h"

#include "examples/gallery/Scene.h"

namespace quillgrid::example {

namespace {

QString PictureLines(const Scene& scene, const QString& folder) {
    // A picture of double density is as large on the page as one of single density.
    QString size;
    if (scene.Scale > 1) size = QStringLiteral("`%1` pixels for each logical one. ").arg(scene.Scale);
    return QStringLiteral("%1%2\n\n![%3](%4/%5.png)\n\n")
        .arg(scene.Text + QLatin1String(". "), size, scene.Text, folder, scene.Name)
        .replace(QLatin1String(". \n"), QLatin1String(".\n"));
}

} // namespace

QString GalleryPage(const QString& folder) {
    QString page = QStringLiteral(
        "# Gallery\n\n"
        "The control in its looks. Every picture is drawn by the program in `examples/gallery`, which also\n"
        "shows the forms to click through; `tools/make_gallery` draws them anew and writes this page. They\n"
        "have the glyphs of Debian 12 (Qt 6.4, DejaVu Sans at 13 pixels, the Fusion style): elsewhere the\n"
        "same forms look a little different.\n\n");
    QString section;
    for (const Scene& scene : AllScenes()) {
        if (scene.Section != section) page += QStringLiteral("## %1\n\n").arg(scene.Section);
        section = scene.Section;
        page += PictureLines(scene, folder);
    }
    return page.trimmed() + QLatin1Char('\n');
}

} // namespace quillgrid::example
