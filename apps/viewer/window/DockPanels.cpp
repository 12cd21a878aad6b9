#include "apps/viewer/window/DockPanels.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/editing/DifferencePanel.h"
#include "apps/viewer/panels/EventLog.h"
#include "apps/viewer/panels/LibraryPanel.h"
#include "apps/viewer/panels/ViewSettings.h"
#include "apps/viewer/panels/WellInspector.h"
#include "apps/viewer/plate/PlateView.h"

#include <QDockWidget>
#include <QMainWindow>
#include <QScrollArea>

namespace zorvane::viewer {

namespace {

constexpr int kEventsHeight = 130; // pixels

/// The name is that with which the window keeps where the dock is.
QDockWidget* AddDock(QMainWindow& window, const QString& name, const QString& title,
                     QWidget* content, Qt::DockWidgetArea area) {
    auto* dock = new QDockWidget(title, &window);
    dock->setObjectName(name);
    dock->setWidget(content);
    // What lies under another tab is no stop of the Tab key, but keeps its room.
    dock->setMinimumWidth(content->minimumWidth());
    QObject::connect(dock, &QDockWidget::visibilityChanged, content, &QWidget::setVisible);
    window.addDockWidget(area, dock);
    return dock;
}

/// A panel that scrolls where the window is too low for it.
QWidget* Scrolled(QWidget* panel) {
    auto* scroll = new QScrollArea;
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidget(panel);
    scroll->setMinimumWidth(panel->sizeHint().width() + 16);
    scroll->setFocusPolicy(Qt::NoFocus);
    return scroll;
}

} // namespace

DockPanels::DockPanels(QMainWindow& window, PlateSession& session, PlateView& view)
    : library_(new LibraryPanel), events_(new EventLog), difference_(new DifferencePanel) {
    auto* settings = new ViewSettings(session);
    QObject::connect(settings, &ViewSettings::fixedSizeChanged, &view, &PlateView::SetFitted);
    view.SetFitted(session.Widget().fixedSize());

    AddDock(window, QStringLiteral("Plates"), tr("Plates"), library_, Qt::LeftDockWidgetArea);
    wellDock_ = AddDock(window, QStringLiteral("Well"), tr("Well"),
                        Scrolled(new WellInspector(session)), Qt::RightDockWidgetArea);
    QDockWidget* options = AddDock(window, QStringLiteral("Settings"), tr("Settings"),
                                   Scrolled(settings), Qt::RightDockWidgetArea);
    window.tabifyDockWidget(wellDock_, options);
    differenceDock_ = AddDock(window, QStringLiteral("Difference"), tr("Difference"), difference_,
                              Qt::RightDockWidgetArea);
    window.tabifyDockWidget(options, differenceDock_);
    differenceDock_->hide();
    wellDock_->raise();
    QDockWidget* events =
        AddDock(window, QStringLiteral("Events"), tr("Events"), events_, Qt::BottomDockWidgetArea);
    events->hide(); // until somebody asks for them, the room is the plate's
    QWidget::setTabOrder(&library_->List(), &view.Widget());
    window.setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    window.setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    window.setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    window.resizeDocks({events}, {kEventsHeight}, Qt::Vertical);
}

void DockPanels::ShowDifference(bool on) const {
    const bool wasThere = !differenceDock_->isHidden();
    differenceDock_->setVisible(on);
    if (on || wasThere) (on ? differenceDock_ : wellDock_)->raise();
}

} // namespace zorvane::viewer
