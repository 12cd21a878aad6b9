#pragma once

#include <QCoreApplication>

class QDockWidget;
class QMainWindow;

namespace zorvane::viewer {

class DifferencePanel;
class EventLog;
class LibraryPanel;
class PlateSession;
class PlateView;

/// The panels around the plate, each in a dock of the window, which owns them.
class DockPanels {
    Q_DECLARE_TR_FUNCTIONS(DockPanels)

  public:
    DockPanels(QMainWindow& window, PlateSession& session, PlateView& view);

    LibraryPanel& Library() const { return *library_; }
    EventLog& Events() const { return *events_; }
    DifferencePanel& Difference() const { return *difference_; }
    /// Puts the difference to the library in front of the other panels, or hides it and puts the
    /// well in front.
    void ShowDifference(bool on) const;

  private:
    LibraryPanel* library_;
    EventLog* events_;
    DifferencePanel* difference_;
    QDockWidget* wellDock_;
    QDockWidget* differenceDock_;
};

} // namespace zorvane::viewer
