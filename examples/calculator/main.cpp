// The calculator pad as a program of its own. Enter on a result copies it and closes the window.
#include "apps/record_editor/WindowStyle.h"
#include "quillgrid/hosts/qt/CalculatorWidget.h"
#include "quillgrid/hosts/qt/QtLocale.h"
#include "quillgrid/locale/Coercion.h"

#include <QApplication>
#include <QClipboard>
#include <QCommandLineParser>
#include <QPixmap>
#include <QVBoxLayout>

#include <cstdio>

using namespace quillgrid;

namespace {

struct Options {
    QString Keys;
    QString Screenshot;
    bool Dark = false;
};

Options Parsed(const QCoreApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("A pocket calculator with four formula keys."));
    parser.addHelpOption();
    const QCommandLineOption keys(QStringLiteral("keys"), QStringLiteral("Types these first: 12*3="),
                                  QStringLiteral("KEYS"));
    const QCommandLineOption picture(QStringLiteral("screenshot"),
                                     QStringLiteral("Writes a picture instead of showing a window."),
                                     QStringLiteral("FILE.png"));
    const QCommandLineOption dark(QStringLiteral("dark"), QStringLiteral("In dark colours."));
    parser.addOptions({keys, picture, dark});
    parser.process(application);
    return {parser.value(keys), parser.value(picture), parser.isSet(dark)};
}

/// The same keys as from the keyboard, so far as one character stands for them.
void Type(QGCalcpad& pad, const QString& keys) {
    for (const QChar key : keys) {
        std::int32_t character = key.unicode();
        pad.KeyPress(character);
    }
}

QString Result(const QGCalcpad& pad) {
    return QString::fromStdString(ToText(pad.Value(), qt::LocaleFromQt(QLocale())));
}

} // namespace

int main(int argc, char** argv) {
    for (int i = 1; i < argc; ++i) {
        if (QByteArray(argv[i]).startsWith("--screenshot")) qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    const Options options = Parsed(application);
    if (options.Dark || !options.Screenshot.isEmpty()) {
        editor::UseFixedLook();
        QApplication::setPalette(options.Dark ? editor::DarkPalette() : editor::LightPalette());
    }
    QWidget window;
    window.setWindowTitle(QStringLiteral("Calculator"));
    auto* layout = new QVBoxLayout(&window);
    layout->setSizeConstraint(QLayout::SetFixedSize);
    auto* calculator = new qt::CalculatorWidget;
    layout->addWidget(calculator);
    Type(calculator->pad(), options.Keys);
    QObject::connect(calculator, &qt::CalculatorWidget::closeUp, &window, [&] {
        QGuiApplication::clipboard()->setText(Result(calculator->pad()));
        window.close();
    });
    calculator->setFocus();
    window.show();
    if (options.Screenshot.isEmpty()) return QApplication::exec();
    QApplication::processEvents();
    if (window.grab().save(options.Screenshot, "PNG")) return 0;
    std::fprintf(stderr, "calculator: %s cannot be written\n", qUtf8Printable(options.Screenshot));
    return 1;
}
