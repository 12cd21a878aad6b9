#include "apps/viewer/window/RecentFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>

namespace zorvane::viewer {

namespace {

constexpr qsizetype kMostFiles = 8;
constexpr const char* kKey = "recentLibraries";

QStringList PresentFiles() {
    QStringList files = QSettings().value(kKey).toStringList();
    files.removeIf([](const QString& file) { return !QFileInfo::exists(file); });
    return files;
}

} // namespace

RecentFiles::RecentFiles(QWidget* parent) : QMenu(tr("Open &Recent"), parent) {
    setToolTipsVisible(true);
    connect(this, &QMenu::aboutToShow, this, &RecentFiles::Fill);
    Fill();
}

void RecentFiles::Add(const QString& file) {
    const QString path = QFileInfo(file).absoluteFilePath();
    QStringList files = PresentFiles();
    files.removeAll(path);
    files.prepend(path);
    QSettings().setValue(kKey, files.mid(0, kMostFiles));
    Fill();
}

void RecentFiles::Fill() {
    clear();
    const QStringList files = PresentFiles();
    for (const QString& file : files) {
        // An ampersand would mark an access key.
        QAction* action = addAction(QFileInfo(file).fileName().replace('&', "&&"));
        action->setToolTip(QDir::toNativeSeparators(file));
        connect(action, &QAction::triggered, this, [this, file] { emit chosen(file); });
    }
    addSeparator();
    addAction(tr("&Clear List"), this, &RecentFiles::Forget);
    setEnabled(!files.isEmpty());
}

void RecentFiles::Forget() {
    QSettings().remove(kKey);
    Fill();
}

} // namespace zorvane::viewer
