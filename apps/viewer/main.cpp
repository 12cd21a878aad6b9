#include "apps/viewer/MainWindow.h"
#include "apps/viewer/Picture.h"
#include "apps/viewer/PlateSession.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QStyle>
#include <QTextStream>

#include <algorithm>
#include <string_view>

namespace {

using namespace zorvane;

constexpr int kFailed = 1;

struct Options {
    QString picture;
    QString output;
    QString plateLibrary;
};

Options ReadOptions(const QCoreApplication& app) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QCoreApplication::tr("Shows the plates of a library, and the data of their wells."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addOption({QStringLiteral("picture"),
                      QCoreApplication::tr("Write the picture of a plate to a file and exit."),
                      QStringLiteral("plate")});
    parser.addOption({{QStringLiteral("o"), QStringLiteral("output")},
                      QCoreApplication::tr("The image file that --picture writes."),
                      QStringLiteral("file")});
    parser.addPositionalArgument(
        QStringLiteral("library"),
        QCoreApplication::tr("Plate library to open; else the one that the registry leads to."),
        QStringLiteral("[library]"));
    parser.process(app);
    const QStringList files = parser.positionalArguments();
    Options options{parser.value(QStringLiteral("picture")), parser.value(QStringLiteral("output")),
                    files.value(0)};
    const bool incomplete = parser.isSet(QStringLiteral("picture")) &&
                            (options.output.isEmpty() || options.plateLibrary.isEmpty());
    if (incomplete || files.size() > 1) parser.showHelp(kFailed);
    return options;
}

int Draw(const Options& options) {
    const QString failure = WritePicture(options.plateLibrary, options.picture, options.output);
    if (failure.isEmpty()) return 0;
    QTextStream(stderr) << "plate-viewer: " << failure << "\n";
    return kFailed;
}

/// Help and version need no display.
bool AsksForTextOnly(int argc, char** argv) {
    return std::any_of(argv + 1, argv + argc, [](std::string_view option) {
        return option == "-h" || option == "--help" || option == "-v" || option == "--version";
    });
}

void NameTheProgram() {
    QCoreApplication::setOrganizationName(QStringLiteral("Zorvane"));
    QCoreApplication::setApplicationName(QStringLiteral("plate-viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PLATE_VIEWER_VERSION));
}

/// Where the platform has no style of its own.
void ChooseStyle() {
    if (QApplication::style()->name() == QLatin1String("windows")) QApplication::setStyle("fusion");
}

/// The library that the registry leads every control to, where there is one.
QString DefaultLibrary(MainWindow& window) {
    const QString file = window.Session().Widget().fileName();
    return QFileInfo::exists(file) ? file : QString();
}

} // namespace

int main(int argc, char** argv) {
    NameTheProgram();
    if (AsksForTextOnly(argc, argv)) {
        const QCoreApplication app(argc, argv);
        ReadOptions(app);
    }
    const QApplication app(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Plate Viewer"));
    ChooseStyle();

    const Options options = ReadOptions(app);
    if (!options.picture.isEmpty()) return Draw(options);
    MainWindow window;
    window.show();
    const QString file =
        options.plateLibrary.isEmpty() ? DefaultLibrary(window) : options.plateLibrary;
    if (!file.isEmpty()) window.OpenLibrary(file);
    return QApplication::exec();
}
