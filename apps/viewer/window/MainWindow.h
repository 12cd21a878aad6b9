#pragma once

#include "apps/viewer/logic/EventTexts.h"

#include <QMainWindow>

#include <optional>

class QLabel;

namespace zorvane::viewer {

class DockPanels;
class EditMode;
class LibraryBrowser;
class MainMenu;
class PlateSession;
class PlateView;

/// The window of Plate Viewer: the plates of a library, one of them in the middle, and panels that
/// show and change what it holds.
class MainWindow final : public QMainWindow {
    Q_OBJECT

  public:
    MainWindow();

    /// Opens a library and shows one of its plates. Says what is wrong in a message box, and keeps
    /// what was open, when the file cannot be read.
    bool OpenLibrary(const QString& file);
    /// Opens the library and the plate that the last run ended with, if the file is still there.
    bool OpenLastLibrary();
    PlateSession& Session() { return *session_; }

  protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void AddMenus();
    void ConnectEditing(const DockPanels& panels);
    void ConnectLibrary();
    void ConnectPlate(const DockPanels& panels);
    void Restore(const DockPanels& panels);
    void Remember() const;
    void Warn(const QString& text);
    void ShowTitle();
    void ShowSelection();

    PlateView* view_;
    PlateSession* session_;
    EditMode* editing_ = nullptr;
    LibraryBrowser* library_ = nullptr;
    MainMenu* menu_;
    QLabel* selection_;
    std::optional<EventTexts> events_; // goes before the plate does
};

} // namespace zorvane::viewer
