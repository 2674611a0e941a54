#include "examples/common/Example.h"

#include "apps/record_editor/WindowStyle.h"

#include <QLocale>
#include <QPixmap>
#include <QWidget>

namespace quillgrid::examples {

namespace {

/// Without a user there need not be a screen.
int& OffScreen(int& argc) {
    if (argc > 1) qputenv("QT_QPA_PLATFORM", "offscreen");
    return argc;
}

} // namespace

Example::Example(int& argc, char** argv) : application_(OffScreen(argc), argv) {
    if (argc < 2) return;
    editor::UseFixedLook();
    QLocale::setDefault(QLocale(QStringLiteral("en_GB")));
}

int Example::Run(QWidget& window, const std::function<bool()>& works) {
    const QStringList arguments = QApplication::arguments().mid(1);
    window.show();
    if (arguments.isEmpty()) return QApplication::exec();
    QApplication::processEvents();
    if (arguments.contains(QStringLiteral("--smoke")) && !works()) return 1;
    const qsizetype picture = arguments.indexOf(QStringLiteral("--picture"));
    if (picture < 0) return 0;
    QApplication::processEvents();
    return window.grab().save(arguments.value(picture + 1), "PNG") ? 0 : 2;
}

} // namespace quillgrid::examples
