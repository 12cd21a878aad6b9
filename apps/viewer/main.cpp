#include "apps/viewer/CommandLine.h"
#include "apps/viewer/Picture.h"
#include "apps/viewer/PlateSession.h"
#include "apps/viewer/window/MainWindow.h"
#include "hosts/qt/texts/Catalogue.h"

#include <QApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QStyle>
#include <QTextStream>

#include <cstdlib>

namespace {

using namespace zorvane::viewer;

int Draw(const CommandLine& asked) {
    const QString failure = WritePicture(asked.fileName, asked.picture, asked.output);
    if (failure.isEmpty()) return EXIT_SUCCESS;
    QTextStream(stderr) << "plate-viewer: " << failure << "\n";
    return EXIT_FAILURE;
}

void NameTheProgram() {
    QCoreApplication::setOrganizationName(QStringLiteral("Zorvane"));
    QCoreApplication::setApplicationName(QStringLiteral("plate-viewer"));
    QCoreApplication::setApplicationVersion(QStringLiteral(PLATE_VIEWER_VERSION));
}

/// The language that the system asks for. Qt's own catalogues are there where they are installed.
void ChooseLanguage() {
    const QLocale locale;
    zorvane::InstallCatalogue(QStringLiteral("qtbase"),
                              QLibraryInfo::path(QLibraryInfo::TranslationsPath), locale);
    zorvane::PlateWidget::installTranslation(locale);
    zorvane::InstallCatalogue(QStringLiteral("plate-viewer"),
                              QStringLiteral(":/plate-viewer/translations"), locale);
}

/// Where the platform has no style of its own.
void ChooseStyle() {
    if (QApplication::style()->name() == QLatin1String("windows")) QApplication::setStyle("fusion");
}

/// Opens the library asked for, else that of the last run, else the one that the registry leads
/// every control to.
void OpenFirstLibrary(MainWindow& window, const QString& asked) {
    if (!asked.isEmpty()) {
        window.OpenLibrary(asked);
    } else if (!window.OpenLastLibrary()) {
        const QString file = window.Session().Widget().fileName();
        if (QFileInfo::exists(file)) window.OpenLibrary(file);
    }
}

} // namespace

int main(int argc, char** argv) {
    NameTheProgram();
    if (AsksForTextOnly(argc, argv)) {
        const QCoreApplication app(argc, argv);
        ChooseLanguage();
        const CommandLine answered(app);
    }
    const QApplication app(argc, argv);
    QApplication::setApplicationDisplayName(QStringLiteral("Plate Viewer"));
    ChooseStyle();
    ChooseLanguage();

    const CommandLine asked(app);
    if (!asked.picture.isEmpty()) return Draw(asked);
    MainWindow window;
    window.show();
    OpenFirstLibrary(window, asked.fileName);
    return QApplication::exec();
}
