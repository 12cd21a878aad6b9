#pragma once

#include <QObject>

class QActionGroup;
class QMainWindow;
class QToolBar;

namespace zorvane::viewer {

class EditMode;
class LibraryBrowser;
class PlateSession;
class RecentFiles;
class WellDataFiles;

/// The menus and the tool bar of the window.
class MainMenu final : public QObject {
    Q_OBJECT

  public:
    MainMenu(QMainWindow& window, PlateSession& session);

    void AddFileMenu(LibraryBrowser& library, WellDataFiles& data);
    void AddEditMenu(LibraryBrowser& library, EditMode& editing);
    void AddWellsMenu();
    /// Lists the docks that the window has by then.
    void AddViewMenu();
    void AddHelpMenu();

    /// Allows or refuses whatever needs a plate with wells.
    void SetHasWells(bool on);

  private:
    void ShowFillDialog();
    void ShowKeys();
    void ShowAbout();

    QMainWindow& window_;
    PlateSession& session_;
    QToolBar* tools_;
    QActionGroup* needWells_;
};

} // namespace zorvane::viewer
