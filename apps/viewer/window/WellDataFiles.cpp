#include "apps/viewer/window/WellDataFiles.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/texts/ErrorText.h"
#include "apps/viewer/window/LibraryBrowser.h"
#include "library/DiskFiles.h"
#include "library/ReplaceFile.h"
#include "welldata/WellDataCsv.h"

#include <QFileDialog>
#include <QFileInfo>

#include <vector>

namespace zorvane::viewer {

WellDataFiles::WellDataFiles(PlateSession& session, const LibraryBrowser& library, QWidget& window)
    : QObject(&window), session_(session), library_(library), window_(window) {}

QString WellDataFiles::Folder() const { return QFileInfo(library_.File()).path(); }

void WellDataFiles::AskAndImport() {
    const QString file =
        QFileDialog::getOpenFileName(&window_, tr("Import Well Data"), Folder(),
                                     tr("Comma-separated values (*.csv);;All files (*)"));
    if (!file.isEmpty()) Import(file);
}

void WellDataFiles::AskAndExport() {
    QFileDialog dialog(&window_, tr("Export Well Data"), Folder(),
                       tr("Comma-separated values (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    dialog.selectFile(session_.Widget().plateName() + QStringLiteral(".csv"));
    if (dialog.exec() == QDialog::Accepted) Export(dialog.selectedFiles().front());
}

void WellDataFiles::Import(const QString& file) {
    const QString name = QFileInfo(file).fileName();
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        emit failed(tr("%1: %2").arg(name, input.errorString()));
        return;
    }
    std::vector<WellDataRow> rows;
    try {
        rows = ParseWellData(input.readAll().toStdString(), session_.Names());
    } catch (const RuntimeError& error) {
        emit failed(tr("%1, %2.\n\nNothing was changed.").arg(name, ErrorText(error)));
        return;
    }
    const bool allInFile = !session_.PlatesNotInFile().contains(session_.Widget().plateName());
    session_.EditWells(tr("Import"), [&] { ApplyWellData(session_.Control(), rows); });
    if (allInFile) session_.DataIsInFile();
    const auto count = static_cast<int>(rows.size());
    emit done((count == 1 ? tr("Data of 1 well were read from %1")
                          : tr("Data of %n wells were read from %1", nullptr, count))
                  .arg(name));
}

void WellDataFiles::Export(const QString& file) {
    const QString name = QFileInfo(file).fileName();
    const String text = WellDataText(session_.Control(), session_.Names());
    DiskFiles files;
    try {
        ReplaceFile(files, file.toStdString(), text);
    } catch (const RuntimeError& error) {
        emit failed(ErrorText(error));
        return;
    }
    session_.DataIsInFile();
    emit done(tr("The data of all wells were written to %1").arg(name));
}

} // namespace zorvane::viewer
