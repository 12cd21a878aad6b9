#include "apps/viewer/FillDialog.h"
#include "apps/viewer/MainWindow.h"
#include "apps/viewer/PlateSession.h"
#include "welldata/WellDataCsv.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QSaveFile>
#include <QStatusBar>

namespace zorvane {

void MainWindow::AskForLibrary() {
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Open Plate Library"), QFileInfo(file_).path(),
                                     tr("Plate libraries (*.dat *.Dat *.DAT);;All files (*)"));
    if (!file.isEmpty()) OpenLibrary(file);
}

void MainWindow::AskForImport() {
    const QString file =
        QFileDialog::getOpenFileName(this, tr("Import Well Data"), QFileInfo(file_).path(),
                                     tr("Comma-separated values (*.csv);;All files (*)"));
    if (file.isEmpty()) return;
    const QString failure = ImportData(file);
    if (!failure.isEmpty()) Warn(failure);
}

void MainWindow::AskForExport() {
    const QString name = QString::fromStdString(session_->Control().PlateName()) + ".csv";
    QFileDialog dialog(this, tr("Export Well Data"), QFileInfo(file_).path(),
                       tr("Comma-separated values (*.csv)"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    dialog.selectFile(name);
    if (dialog.exec() != QDialog::Accepted) return;
    const QString failure = ExportData(dialog.selectedFiles().front());
    if (!failure.isEmpty()) Warn(failure);
}

QString MainWindow::ImportData(const QString& file) {
    const QString name = QFileInfo(file).fileName();
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) return name + QStringLiteral(": ") + input.errorString();
    std::vector<WellDataRow> rows;
    try {
        rows = ParseWellData(input.readAll().toStdString(), session_->Names());
    } catch (const RuntimeError& error) {
        return tr("%1, %2.\n\nNothing was changed.")
            .arg(name, QString::fromStdString(error.Description()));
    }
    session_->Edit([&] { ApplyWellData(session_->Control(), rows); });
    statusBar()->showMessage(tr("Data of %1 wells were read from %2").arg(rows.size()).arg(name));
    return {};
}

QString MainWindow::ExportData(const QString& file) const {
    const QString name = QFileInfo(file).fileName();
    const String text = WellDataText(session_->Control(), session_->Names());
    QSaveFile output(file);
    const bool done = output.open(QIODevice::WriteOnly) &&
                      output.write(text.data(), static_cast<qint64>(text.size())) ==
                          static_cast<qint64>(text.size()) &&
                      output.commit();
    if (!done) return name + QStringLiteral(": ") + output.errorString();
    statusBar()->showMessage(tr("The data of all wells were written to %1").arg(name));
    return {};
}

void MainWindow::AskForFill() {
    FillDialog dialog(*session_, this);
    dialog.exec();
}

} // namespace zorvane
