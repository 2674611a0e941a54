// A year with the holidays of a country, on the screen or on paper.
#include "examples/year_planner/PlannerWindow.h"

#include "apps/record_editor/WindowStyle.h"

#include <QApplication>
#include <QPixmap>

#include <cstdio>

using namespace quillgrid;
using namespace quillgrid::example;

namespace {

/// Before the application exists.
void PrepareSurroundings(const PlannerOptions& options) {
    if (options.Locale) QLocale::setDefault(*options.Locale);
    if (options.ShowsWindow()) return;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_FONT_DPI");
    qputenv("QT_SCALE_FACTOR", QByteArray::number(options.Scale));
    qputenv("QT_SCALE_FACTOR_ROUNDING_POLICY", "PassThrough");
}

void ChooseLook(const PlannerOptions& options) {
    if (options.ShowsWindow() && !options.Dark) return;
    editor::UseFixedLook();
    QApplication::setPalette(options.Dark ? editor::DarkPalette() : editor::LightPalette());
}

int Report(bool written, const QString& path) {
    if (!written) std::fprintf(stderr, "year_planner: %s cannot be written\n", qUtf8Printable(path));
    return written ? 0 : 1;
}

int WriteFiles(PlannerWindow& window, const PlannerOptions& options) {
    QApplication::processEvents();
    int faults = 0;
    if (!options.Screenshot.isEmpty())
        faults += Report(window.grab().save(options.Screenshot, "PNG"), options.Screenshot);
    if (!options.Pdf.isEmpty()) faults += Report(window.view().printPdf(options.Pdf), options.Pdf);
    return faults == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    const auto options = PlannerOptions::Parse(argc, argv);
    if (!options) {
        std::fputs(PlannerOptions::Usage(), stderr);
        return 2;
    }
    PrepareSurroundings(*options);
    QApplication application(argc, argv);
    ChooseLook(*options);
    PlannerWindow window(*options);
    window.show();
    return options->ShowsWindow() ? QApplication::exec() : WriteFiles(window, *options);
}
