// The tests need an application object, and the same look and locale everywhere.
#include <QApplication>
#include <QFont>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(QPalette(QColor(239, 239, 239)));
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(13);
    QApplication::setFont(font);
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    return RUN_ALL_TESTS();
}
