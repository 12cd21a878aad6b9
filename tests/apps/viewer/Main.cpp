#include <QApplication>
#include <QLocale>
#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true); // keeps the recent files of whoever runs the tests
    QLocale::setDefault(QLocale::c());        // numbers look the same on every machine
    const QApplication application(argc, argv);
    QApplication::setApplicationName("viewer-test");
    return RUN_ALL_TESTS();
}
