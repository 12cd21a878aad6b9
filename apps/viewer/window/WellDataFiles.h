#pragma once

#include <QObject>
#include <QString>

class QWidget;

namespace zorvane::viewer {

class LibraryBrowser;
class PlateSession;

/// Reads data of the plate's wells from comma-separated files and writes them to such files.
class WellDataFiles final : public QObject {
    Q_OBJECT

  public:
    WellDataFiles(PlateSession& session, const LibraryBrowser& library, QWidget& window);

    /// Lets the operator choose a file, and reads the data in it. A file with an error anywhere
    /// changes nothing.
    void AskAndImport();
    void AskAndExport();

  signals:
    void done(const QString& report);
    void failed(const QString& reason);

  private:
    void Import(const QString& file);
    void Export(const QString& file);
    QString Folder() const;

    PlateSession& session_;
    const LibraryBrowser& library_;
    QWidget& window_;
};

} // namespace zorvane::viewer
