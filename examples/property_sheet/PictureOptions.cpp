#include "examples/property_sheet/PictureOptions.h"

#include "apps/record_editor/WindowStyle.h"

#include <QApplication>

namespace quillgrid::example {

std::optional<PictureOptions> PictureOptions::Parse(int argc, char** argv) {
    PictureOptions options;
    for (int i = 1; i < argc; ++i) {
        const QString name = QString::fromLocal8Bit(argv[i]);
        if (name == u"--dark") {
            options.Dark = true;
            continue;
        }
        if (i + 1 >= argc) return std::nullopt;
        const QString value = QString::fromLocal8Bit(argv[++i]);
        bool fits = !value.isEmpty();
        if (name == u"--picture") {
            options.Picture = value;
        } else if (name == u"--scale") {
            options.Scale = value.toDouble(&fits);
            fits = fits && options.Scale >= 0.5 && options.Scale <= 8;
        } else {
            fits = false;
        }
        if (!fits) return std::nullopt;
    }
    return options;
}

const char* PictureOptions::Usage() {
    return "usage: property_sheet [--dark] [--picture FILE.png] [--scale N]\n"
           "\n"
           "Shows a form and, in a second form, its properties. --picture writes the window to a file "
           "instead of\n"
           "showing it, at a scale of 0.5 to 8.\n";
}

void PictureOptions::PrepareSurroundings() const {
    if (Picture.isEmpty()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_FONT_DPI");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(Scale));
    qputenv("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough");
}

void PictureOptions::ChooseLook() const {
    if (Picture.isEmpty() && !Dark) return;
    editor::UseFixedLook();
    QApplication::setPalette(Dark ? editor::DarkPalette() : editor::LightPalette());
}

} // namespace quillgrid::example
