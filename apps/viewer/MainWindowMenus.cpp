#include "apps/viewer/MainWindow.h"
#include "apps/viewer/PlateSession.h"
#include "apps/viewer/RecentFiles.h"

#include <QAction>
#include <QApplication>
#include <QDockWidget>
#include <QMenuBar>
#include <QMessageBox>
#include <QToolBar>

namespace zorvane {

QAction* MainWindow::AddAction(QMenu& menu, const QString& text, const QString& icon,
                               const QKeySequence& shortcut, void (MainWindow::*run)()) {
    QAction* action = menu.addAction(QIcon::fromTheme(icon), text);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, run);
    return action;
}

void MainWindow::MakeFileMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&File"));
    QAction* open = AddAction(menu, tr("&Open Library…"), QStringLiteral("document-open"),
                              QKeySequence::Open, &MainWindow::AskForLibrary);
    open->setIconText(tr("Open"));
    recent_ = new RecentFiles(this);
    menu.addMenu(recent_);
    connect(recent_, &RecentFiles::chosen, this, &MainWindow::OpenLibrary);
    menu.addSeparator();
    QAction* import = AddAction(menu, tr("&Import Well Data…"), QStringLiteral("document-import"),
                                QKeySequence(tr("Ctrl+I")), &MainWindow::AskForImport);
    import->setIconText(tr("Import"));
    QAction* exporting =
        AddAction(menu, tr("&Export Well Data…"), QStringLiteral("document-export"),
                  QKeySequence(tr("Ctrl+E")), &MainWindow::AskForExport);
    exporting->setIconText(tr("Export"));
    menu.addSeparator();
    QAction* quit = menu.addAction(tr("&Quit"), this, &QWidget::close);
    quit->setShortcut(QKeySequence::Quit);
    quit->setMenuRole(QAction::QuitRole);

    needPlate_.insert(needPlate_.end(), {import, exporting});
    tools_->addActions({open, import, exporting});
    tools_->addSeparator();
}

void MainWindow::MakeWellsMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&Wells"));
    QAction* fill = AddAction(menu, tr("&Fill Block…"), QStringLiteral("fill-color"),
                              QKeySequence(tr("Ctrl+F")), &MainWindow::AskForFill);
    fill->setIconText(tr("Fill Block"));
    QAction* clear =
        menu.addAction(tr("&Clear Selected Wells"), session_, &PlateSession::ClearSelectedWells);
    clear->setShortcut(QKeySequence::Delete);
    QAction* deselect = menu.addAction(tr("&Deselect All"), session_, &PlateSession::Deselect);
    deselect->setShortcut(QKeySequence(tr("Ctrl+Shift+A")));
    needPlate_.insert(needPlate_.end(), {fill, clear, deselect});
    tools_->addAction(fill);
}

void MainWindow::MakeViewMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&View"));
    QAction* volumes = menu.addAction(tr("&Colour Wells by Volume"));
    volumes->setIconText(tr("Volumes"));
    volumes->setCheckable(true);
    volumes->setShortcut(QKeySequence(tr("Ctrl+L")));
    connect(volumes, &QAction::toggled, session_, &PlateSession::ColorByVolume);
    needPlate_.push_back(volumes);
    tools_->addAction(volumes);
    menu.addSeparator();
    for (QDockWidget* dock : findChildren<QDockWidget*>())
        menu.addAction(dock->toggleViewAction());
}

void MainWindow::MakeHelpMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&Help"));
    QAction* about = menu.addAction(tr("&About Plate Viewer"), this, &MainWindow::ShowAbout);
    about->setMenuRole(QAction::AboutRole);
}

void MainWindow::ShowAbout() {
    QMessageBox::about(this, tr("About Plate Viewer"),
                       tr("<h3>Plate Viewer %1</h3><p>Shows the plates of a library, and the data "
                          "of their wells.</p>")
                           .arg(QApplication::applicationVersion()));
}

} // namespace zorvane
