#include <QApplication>
#include <QLocale>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QTemporaryDir
        settings; // leaves alone those of whoever runs the tests, and of other tests
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    QLocale::setDefault(QLocale::c()); // numbers look the same on every machine
    const QApplication application(argc, argv);
    QApplication::setApplicationName("viewer-test");
    return RUN_ALL_TESTS();
}
