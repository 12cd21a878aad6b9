#pragma once

#include "platetext/LibraryIndex.h"

#include <QMainWindow>

#include <memory>
#include <vector>

class QDockWidget;
class QLabel;
class QMenu;
class QToolBar;

namespace zorvane {

class EditMode;
class EventLog;
class EventTexts;
class LibraryPanel;
class PlateSession;
class PlateView;
class RecentFiles;
class ViewSettings;

/// The window of Plate Viewer: the plates of a library, one of them in the middle, and panels that
/// show and change what it holds.
class MainWindow final : public QMainWindow {
    Q_OBJECT

  public:
    MainWindow();
    ~MainWindow() override;

    /// Opens a library and shows one of its plates. Tells what is wrong in a message box, and keeps
    /// what was open, when the file cannot be read.
    bool OpenLibrary(const QString& file);
    PlateSession& Session() { return *session_; }
    EditMode& Editing() { return *editing_; }

    /// Reads data of wells from a file, or writes them to one. Returns what is wrong, with nothing
    /// changed by a file that cannot be read to its end; empty text when done.
    QString ImportData(const QString& file);
    QString ExportData(const QString& file) const;

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void MakePanels();
    void MakeFileMenu();
    void MakeEditMenu();
    void MakeWellsMenu();
    void MakeViewMenu();
    void MakeHelpMenu();
    QAction* AddAction(QMenu& menu, const QString& text, const QString& icon,
                       const QKeySequence& shortcut, void (MainWindow::*run)());
    void LogEvents();

    void AskForLibrary();
    void AskForImport();
    void AskForExport();
    void AskForFill();
    void ShowAbout();
    void Warn(const QString& text);
    void SwitchEditing(bool on);
    void ShowEditing();
    void ListAgain(const QString& plate);
    bool ReadListing(const QString& file, LibraryListing& listing);
    void ShowPlate(const QString& name);
    void ShowTitle();
    void ShowSelection();

    PlateView* view_;
    PlateSession* session_;
    LibraryPanel* library_ = nullptr;
    EventLog* log_ = nullptr;
    RecentFiles* recent_ = nullptr;
    EditMode* editing_ = nullptr;
    QDockWidget* difference_ = nullptr;
    QAction* edit_ = nullptr;
    QAction* undo_ = nullptr;
    QAction* redo_ = nullptr;
    std::vector<QAction*> needEditing_;
    QToolBar* tools_ = nullptr;
    QLabel* selection_ = nullptr;
    std::vector<QAction*> needPlate_;
    QString file_;
    std::unique_ptr<EventTexts> events_;
};

} // namespace zorvane
