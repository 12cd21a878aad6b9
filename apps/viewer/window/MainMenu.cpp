#include "apps/viewer/window/MainMenu.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/editing/EditMenu.h"
#include "apps/viewer/fill/FillDialog.h"
#include "apps/viewer/window/KeysDialog.h"
#include "apps/viewer/window/LibraryBrowser.h"
#include "apps/viewer/window/RecentFiles.h"
#include "apps/viewer/window/SelectMenu.h"
#include "apps/viewer/window/WellDataFiles.h"

#include <QActionGroup>
#include <QApplication>
#include <QDockWidget>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QSettings>
#include <QToolBar>

namespace zorvane::viewer {

namespace {

constexpr const char* kColorByVolume = "colourByVolume";

QIcon Icon(const char* name) { return QIcon::fromTheme(QLatin1String(name)); }

} // namespace

MainMenu::MainMenu(QMainWindow& window, PlateSession& session)
    : QObject(&window), window_(window), session_(session), tools_(window.addToolBar(tr("Tools"))),
      needWells_(new QActionGroup(this)) {
    tools_->setObjectName(QStringLiteral("Tools"));
    tools_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    needWells_->setExclusionPolicy(QActionGroup::ExclusionPolicy::None);
}

void MainMenu::SetHasWells(bool on) { needWells_->setEnabled(on); }

void MainMenu::AddFileMenu(LibraryBrowser& library, WellDataFiles& data) {
    QMenu& menu = *window_.menuBar()->addMenu(tr("&File"));
    QAction* open = menu.addAction(Icon("document-open"), tr("&Open Library…"), QKeySequence::Open,
                                   &library, &LibraryBrowser::AskAndOpen);
    open->setIconText(tr("Open"));
    auto* recent = new RecentFiles(&window_);
    menu.addMenu(recent);
    connect(recent, &RecentFiles::chosen, &library,
            [&library](const QString& file) { library.Open(file); });
    connect(&library, &LibraryBrowser::opened, recent, &RecentFiles::Add);
    menu.addAction(Icon("edit-find"), tr("&Find Plate"), QKeySequence::Find, &library,
                   &LibraryBrowser::FindPlate);
    menu.addSeparator();
    QAction* import =
        menu.addAction(Icon("document-import"), tr("&Import Well Data…"),
                       QKeyCombination(Qt::CTRL, Qt::Key_I), &data, &WellDataFiles::AskAndImport);
    import->setIconText(tr("Import"));
    QAction* exporting =
        menu.addAction(Icon("document-export"), tr("&Export Well Data…"),
                       QKeyCombination(Qt::CTRL, Qt::Key_E), &data, &WellDataFiles::AskAndExport);
    exporting->setIconText(tr("Export"));
    menu.addSeparator();
    QAction* quit = menu.addAction(tr("&Quit"), QKeySequence::Quit, &window_, &QWidget::close);
    quit->setMenuRole(QAction::QuitRole);

    needWells_->addAction(import);
    needWells_->addAction(exporting);
    tools_->addActions({open, import, exporting});
    tools_->addSeparator();
}

void MainMenu::AddEditMenu(LibraryBrowser& library, EditMode& editing) {
    auto* menu = new EditMenu(library, editing, session_.History(), &window_);
    window_.menuBar()->addMenu(menu);
    needWells_->addAction(menu->Toggle());
    tools_->addAction(menu->Toggle());
}

void MainMenu::AddWellsMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(tr("&Wells"));
    QAction* fill = menu.addAction(Icon("fill-color"), tr("&Fill Block…"),
                                   QKeyCombination({Qt::CTRL, Qt::SHIFT}, Qt::Key_F), this,
                                   &MainMenu::ShowFillDialog);
    fill->setIconText(tr("Fill Block"));
    needWells_->addAction(fill);
    QAction* clear = menu.addAction(tr("&Clear Selected Wells"), QKeySequence::Delete, &session_,
                                    &PlateSession::ClearSelectedWells);
    clear->setShortcutContext(Qt::WidgetShortcut); // elsewhere the key means something else
    session_.Widget().addAction(clear);
    needWells_->addAction(clear);
    needWells_->addAction(menu.addMenu(new SelectMenu(session_, &window_)));
    tools_->addAction(fill);
}

void MainMenu::AddViewMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(tr("&View"));
    QAction* volumes = menu.addAction(tr("&Colour Wells by Volume"));
    volumes->setIconText(tr("Volumes"));
    volumes->setCheckable(true);
    volumes->setShortcut(QKeyCombination(Qt::CTRL, Qt::Key_L));
    connect(volumes, &QAction::toggled, &session_, &PlateSession::ColorByVolume);
    volumes->setChecked(QSettings().value(kColorByVolume).toBool());
    connect(volumes, &QAction::toggled, this,
            [](bool on) { QSettings().setValue(kColorByVolume, on); });
    needWells_->addAction(volumes);
    tools_->addAction(volumes);
    menu.addSeparator();
    for (QDockWidget* dock : window_.findChildren<QDockWidget*>())
        menu.addAction(dock->toggleViewAction());
    menu.addSeparator();
    QAction* full = menu.addAction(tr("&Full Screen"));
    full->setCheckable(true);
    full->setShortcut(Qt::Key_F11);
    connect(&menu, &QMenu::aboutToShow, full,
            [this, full] { full->setChecked(window_.isFullScreen()); });
    connect(full, &QAction::triggered, this,
            [this] { window_.setWindowState(window_.windowState() ^ Qt::WindowFullScreen); });
}

void MainMenu::AddHelpMenu() {
    QMenu& menu = *window_.menuBar()->addMenu(tr("&Help"));
    menu.addAction(tr("&Keys"), QKeySequence(Qt::Key_F1), this, &MainMenu::ShowKeys);
    QAction* about = menu.addAction(tr("&About Plate Viewer"), this, &MainMenu::ShowAbout);
    about->setMenuRole(QAction::AboutRole);
}

void MainMenu::ShowFillDialog() {
    FillDialog dialog(session_, &window_);
    dialog.exec();
}

void MainMenu::ShowKeys() {
    KeysDialog dialog(window_.menuBar()->actions(), &window_);
    dialog.exec();
}

void MainMenu::ShowAbout() {
    QMessageBox::about(&window_, tr("About Plate Viewer"),
                       tr("<h3>Plate Viewer %1</h3><p>Shows the plates of a library, and the data "
                          "of their wells.</p>")
                           .arg(QApplication::applicationVersion()));
}

} // namespace zorvane::viewer
