#include "apps/viewer/window/LibraryBrowser.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/editing/EditMode.h"
#include "apps/viewer/logic/PlateChoice.h"
#include "apps/viewer/panels/LibraryPanel.h"
#include "apps/viewer/texts/ErrorText.h"
#include "apps/viewer/window/DataQuestion.h"

#include <QDockWidget>
#include <QFileDialog>
#include <QFileInfo>
#include <QSettings>

namespace zorvane::viewer {

namespace {

constexpr const char* kLastLibrary = "lastLibrary";
constexpr const char* kLastPlate = "lastPlate";

} // namespace

LibraryBrowser::LibraryBrowser(PlateSession& session, EditMode& editing, LibraryPanel& panel,
                               QWidget& window)
    : QObject(&window), session_(session), editing_(editing), panel_(panel), window_(window) {
    connect(&panel, &LibraryPanel::plateChosen, this, &LibraryBrowser::ShowPlate);
    connect(&editing, &EditMode::libraryChanged, this, &LibraryBrowser::ListAgain);
}

bool LibraryBrowser::Open(const QString& file, const QString& plate) {
    if (!editing_.MayLeave() || (file != file_ && !MayLeaveData(session_, window_))) return false;
    const auto listing = Read(file);
    if (!listing) return false;
    const int first = PlateOrFirst(*listing, plate.toStdString());
    if (first < 0) {
        const QString reason = tr("There is no plate in %1.").arg(QFileInfo(file).fileName());
        emit failed((reason + '\n' + LibraryPanel::StopText(*listing)).trimmed());
        return false;
    }
    editing_.Stop();
    file_ = file;
    panel_.Show(*listing);
    emit opened(file);
    panel_.Choose(first);
    return true;
}

bool LibraryBrowser::OpenLast() {
    const QSettings settings;
    const QString file = settings.value(kLastLibrary).toString();
    return QFileInfo::exists(file) && Open(file, settings.value(kLastPlate).toString());
}

void LibraryBrowser::Remember() const {
    if (file_.isEmpty()) return;
    QSettings settings;
    settings.setValue(kLastLibrary, QFileInfo(file_).absoluteFilePath());
    settings.setValue(kLastPlate, session_.Widget().plateName());
}

void LibraryBrowser::AskAndOpen() {
    const QString file =
        QFileDialog::getOpenFileName(&window_, tr("Open Plate Library"), QFileInfo(file_).path(),
                                     tr("Plate libraries (*.dat *.Dat *.DAT);;All files (*)"));
    if (!file.isEmpty()) Open(file);
}

void LibraryBrowser::FindPlate() {
    if (auto* const dock = qobject_cast<QDockWidget*>(panel_.parentWidget())) {
        dock->show();
        dock->raise();
    }
    panel_.setFocus(Qt::ShortcutFocusReason);
}

void LibraryBrowser::SwitchEditing(bool on) {
    const QString plate = session_.Widget().plateName();
    if (on) {
        editing_.Start(file_, plate);
    } else if (editing_.MayLeave()) {
        editing_.Stop();
        session_.Open(file_, plate);
    }
}

void LibraryBrowser::ShowPlate(const QString& name) {
    emit aboutToShowPlate();
    const bool shown = editing_.MayLeave() && session_.Open(file_, name);
    if (!shown) {
        panel_.SetChosen(session_.Widget().plateName());
    } else if (editing_.IsOn() && !editing_.Start(file_, name)) {
        editing_.Stop();
    }
    emit plateShown();
}

/// Lists what the library holds now, with the edited plate chosen.
void LibraryBrowser::ListAgain(const QString& plate) {
    const auto listing = Read(file_);
    if (!listing) return;
    panel_.Show(*listing);
    panel_.SetChosen(plate);
    emit plateShown();
}

std::optional<LibraryListing> LibraryBrowser::Read(const QString& file) {
    try {
        return ListLibrary(file.toStdString());
    } catch (const RuntimeError& error) {
        emit failed(
            tr("%1 cannot be opened: %2.").arg(QFileInfo(file).fileName(), ErrorText(error)));
        return std::nullopt;
    }
}

} // namespace zorvane::viewer
