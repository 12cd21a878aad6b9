#include "apps/viewer/window/MainWindow.h"

#include "apps/viewer/PlateSession.h"
#include "apps/viewer/editing/EditMode.h"
#include "apps/viewer/panels/EventLog.h"
#include "apps/viewer/panels/LibraryPanel.h"
#include "apps/viewer/plate/PlateView.h"
#include "apps/viewer/window/DataQuestion.h"
#include "apps/viewer/window/DockPanels.h"
#include "apps/viewer/window/LibraryBrowser.h"
#include "apps/viewer/window/MainMenu.h"
#include "apps/viewer/window/WellDataFiles.h"

#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QSettings>
#include <QStatusBar>

namespace zorvane::viewer {

namespace {

// Colours of this program's wells.
constexpr QRgb kSelected = 0x2F6FDE;
constexpr QRgb kDefined = 0x8CCB9B;
constexpr QRgb kError = 0xF0938A;

constexpr int kMessageTime = 10000; // ms
constexpr QSize kFirstSize(1280, 780);

// Under which the settings keep where the window, its docks and its tool bar are.
constexpr const char* kGeometry = "window/geometry";
constexpr const char* kArrangement = "window/arrangement";

QString DroppedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow()
    : view_(new PlateView), session_(new PlateSession(view_->Widget(), this)),
      menu_(new MainMenu(*this, *session_)), selection_(new QLabel) {
    PlateWidget& widget = view_->Widget();
    widget.setDefaultSelectColor(QColor(kSelected));
    widget.setDefinedWellColor(QColor(kDefined));
    widget.setErrorWellColor(QColor(kError));
    view_->SetSession(*session_);
    setCentralWidget(view_);
    setAcceptDrops(true);

    DockPanels panels(*this, *session_, *view_);
    editing_ = new EditMode(*session_, panels.Difference(), *this);
    library_ = new LibraryBrowser(*session_, *editing_, panels.Library(), *this);
    AddMenus();
    ConnectEditing(panels);
    ConnectLibrary();
    ConnectPlate(panels);
    statusBar()->addPermanentWidget(selection_);
    selection_->setTextFormat(Qt::PlainText);
    ShowTitle();
    ShowSelection();
    Restore(panels);
    panels.Library().setFocus();
}

bool MainWindow::OpenLibrary(const QString& file) { return library_->Open(file); }

bool MainWindow::OpenLastLibrary() { return library_->OpenLast(); }

void MainWindow::Restore(const DockPanels& panels) {
    const QSettings settings;
    resize(kFirstSize);
    restoreGeometry(settings.value(kGeometry).toByteArray());
    restoreState(settings.value(kArrangement).toByteArray());
    panels.ShowDifference(false); // the last run may have ended in the middle of editing
}

void MainWindow::Remember() const {
    QSettings settings;
    settings.setValue(kGeometry, saveGeometry());
    settings.setValue(kArrangement, saveState());
    library_->Remember();
}

void MainWindow::AddMenus() {
    auto* files = new WellDataFiles(*session_, *library_, *this);
    connect(files, &WellDataFiles::done, this,
            [this](const QString& report) { statusBar()->showMessage(report); });
    connect(files, &WellDataFiles::failed, this, &MainWindow::Warn);
    menu_->AddFileMenu(*library_, *files);
    menu_->AddEditMenu(*library_, *editing_);
    menu_->AddWellsMenu();
    menu_->AddViewMenu();
    menu_->AddHelpMenu();
}

void MainWindow::ConnectEditing(const DockPanels& panels) {
    connect(editing_, &EditMode::changed, this,
            [this] { setWindowModified(editing_->HasUnsaved()); });
    connect(editing_, &EditMode::switched, this, [panels](bool on) { panels.ShowDifference(on); });
    connect(editing_, &EditMode::failed, this, &MainWindow::Warn);
}

void MainWindow::ConnectLibrary() {
    connect(library_, &LibraryBrowser::aboutToShowPlate, statusBar(), &QStatusBar::clearMessage);
    connect(library_, &LibraryBrowser::plateShown, this, &MainWindow::ShowTitle);
    connect(library_, &LibraryBrowser::failed, this, &MainWindow::Warn);
    connect(view_, &PlateView::openAsked, library_, &LibraryBrowser::AskAndOpen);
}

void MainWindow::ConnectPlate(const DockPanels& panels) {
    connect(&panels.Library(), &LibraryPanel::accepted, this,
            [this] { view_->Widget().setFocus(Qt::TabFocusReason); });
    connect(session_, &PlateSession::failed, this,
            [this](const QString& reason) { statusBar()->showMessage(reason, kMessageTime); });
    connect(session_, &PlateSession::changed, this, &MainWindow::ShowSelection);
    EventLog& log = panels.Events();
    events_.emplace(
        session_->Control(), [&log](const String& line) { log.Add(QString::fromStdString(line)); },
        [this](Integer well) { return session_->Names().Full(well); });
}

void MainWindow::ShowTitle() {
    menu_->SetHasWells(session_->HasWells());
    const QString plate = session_->Widget().plateName();
    const QString file = QFileInfo(library_->File()).fileName();
    setWindowTitle(plate.isEmpty() ? tr("Plate Viewer")
                                   : tr("%1[*] – %2 – Plate Viewer").arg(plate, file));
}

void MainWindow::ShowSelection() {
    const auto selected = static_cast<int>(session_->SelectedWells().size());
    const auto current = session_->CurrentWell();
    const QString well =
        current ? QString::fromStdString(session_->Names().Full(*current)) : QString();
    const QString text = selected == 1 ? tr("%1   ·   1 well selected")
                                       : tr("%1   ·   %n wells selected", nullptr, selected);
    selection_->setText(well.isEmpty() ? QString() : text.arg(well));
}

void MainWindow::Warn(const QString& text) {
    statusBar()->clearMessage();
    auto* box =
        new QMessageBox(QMessageBox::Warning, tr("Plate Viewer"), text, QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
    if (!DroppedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
    event->acceptProposedAction();
    OpenLibrary(DroppedFile(*event->mimeData()));
}

void MainWindow::closeEvent(QCloseEvent* event) {
    event->setAccepted(editing_->MayLeave() && MayLeaveData(*session_, *this));
    if (event->isAccepted()) Remember();
}

} // namespace zorvane::viewer
