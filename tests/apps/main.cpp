#include <QApplication>
#include <QLocale>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    ::testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    return RUN_ALL_TESTS();
}
