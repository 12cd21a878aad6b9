#include "apps/viewer/MainWindow.h"

#include "apps/viewer/DifferencePanel.h"
#include "apps/viewer/EditMode.h"
#include "apps/viewer/EventLog.h"
#include "apps/viewer/LibraryPanel.h"
#include "apps/viewer/PlateSession.h"
#include "apps/viewer/PlateView.h"
#include "apps/viewer/RecentFiles.h"
#include "apps/viewer/ViewSettings.h"
#include "apps/viewer/WellInspector.h"
#include "apps/viewer/logic/EventTexts.h"
#include "apps/viewer/logic/PlateChoice.h"

#include <QDockWidget>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QScrollArea>
#include <QStatusBar>
#include <QToolBar>

namespace zorvane {

namespace {

// Colours of this program's wells.
constexpr QRgb kSelected = 0x2F6FDE;
constexpr QRgb kDefined = 0x8CCB9B;
constexpr QRgb kError = 0xF0938A;

constexpr int kMessageTime = 10000; // ms
constexpr QSize kFirstSize(1280, 780);

QDockWidget* MakeDock(QMainWindow& window, const QString& title, QWidget* content,
                      Qt::DockWidgetArea area) {
    auto* dock = new QDockWidget(title, &window);
    dock->setObjectName(title);
    dock->setWidget(content);
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

QString DroppedFile(const QMimeData& data) {
    const QList<QUrl> urls = data.urls();
    return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

} // namespace

MainWindow::MainWindow() : view_(new PlateView), session_(new PlateSession(view_->Widget(), this)) {
    PlateWidget& widget = view_->Widget();
    widget.setDefaultSelectColor(QColor(kSelected));
    widget.setDefinedWellColor(QColor(kDefined));
    widget.setErrorWellColor(QColor(kError));
    view_->SetSession(*session_);
    setCentralWidget(view_);
    setAcceptDrops(true);

    tools_ = addToolBar(tr("Tools"));
    tools_->setObjectName(QStringLiteral("Tools"));
    tools_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    MakeFileMenu();
    MakePanels();
    MakeEditMenu();
    MakeWellsMenu();
    MakeViewMenu();
    MakeHelpMenu();
    LogEvents();

    statusBar()->addPermanentWidget(selection_ = new QLabel);
    selection_->setTextFormat(Qt::PlainText);
    connect(session_, &PlateSession::failed, this,
            [this](const QString& text) { statusBar()->showMessage(text, kMessageTime); });
    connect(session_, &PlateSession::changed, this, &MainWindow::ShowSelection);
    ShowTitle();
    ShowSelection();
    resize(kFirstSize);
    library_->setFocus();
}

MainWindow::~MainWindow() { view_->Widget().plate().RemoveObserver(*events_); }

void MainWindow::MakePanels() {
    library_ = new LibraryPanel;
    connect(library_, &LibraryPanel::plateChosen, this, &MainWindow::ShowPlate);
    connect(library_, &LibraryPanel::accepted, this,
            [this] { view_->Widget().setFocus(Qt::TabFocusReason); });
    auto* settings = new ViewSettings(*session_);
    connect(settings, &ViewSettings::fixedSizeChanged, view_, &PlateView::SetFitted);
    log_ = new EventLog;

    MakeDock(*this, tr("Plates"), library_, Qt::LeftDockWidgetArea);
    QDockWidget* well = MakeDock(*this, tr("Well"), Scrolled(new WellInspector(*session_)),
                                 Qt::RightDockWidgetArea);
    QDockWidget* options =
        MakeDock(*this, tr("Settings"), Scrolled(settings), Qt::RightDockWidgetArea);
    tabifyDockWidget(well, options);
    auto* difference = new DifferencePanel;
    difference_ = MakeDock(*this, tr("Difference"), difference, Qt::RightDockWidgetArea);
    tabifyDockWidget(options, difference_);
    difference_->hide();
    well->raise();
    editing_ = new EditMode(*session_, *difference, EditQuestions::Over(*this), this);
    QDockWidget* events = MakeDock(*this, tr("Events"), log_, Qt::BottomDockWidgetArea);
    setTabPosition(Qt::AllDockWidgetAreas, QTabWidget::North);
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    setCorner(Qt::BottomRightCorner, Qt::RightDockWidgetArea);
    resizeDocks({events}, {130}, Qt::Vertical);
}

void MainWindow::LogEvents() {
    events_ = std::make_unique<EventTexts>(
        [this](const String& line) { log_->Add(QString::fromStdString(line)); },
        [this](Integer well) { return session_->Names().Full(well); });
    session_->Control().AddObserver(*events_);
}

bool MainWindow::ReadListing(const QString& file, LibraryListing& listing) {
    try {
        listing = ListLibrary(file.toStdString());
        return true;
    } catch (const RuntimeError& error) {
        Warn(tr("%1 cannot be opened: %2.")
                 .arg(QFileInfo(file).fileName(), QString::fromStdString(error.Description())));
        return false;
    }
}

bool MainWindow::OpenLibrary(const QString& file) {
    LibraryListing listing;
    if (!editing_->MayLeave() || !ReadListing(file, listing)) return false;
    editing_->Stop();
    edit_->setChecked(false);
    file_ = file;
    library_->Show(listing);
    recent_->Add(file);
    library_->Choose(FirstPlate(listing));
    return true;
}

void MainWindow::ShowPlate(const QString& name) {
    statusBar()->clearMessage();
    const bool opened = editing_->MayLeave() && session_->Open(file_, name);
    if (!opened) {
        library_->SetChosen(QString::fromStdString(session_->Control().PlateName()));
    } else if (editing_->IsOn() && !editing_->Start(file_, name)) {
        editing_->Stop();
        edit_->setChecked(false);
    }
    ShowTitle();
}

void MainWindow::ShowTitle() {
    const QString plate = QString::fromStdString(session_->Control().PlateName());
    for (QAction* action : needPlate_)
        action->setEnabled(session_->HasWells());
    setWindowTitle(plate.isEmpty()
                       ? tr("Plate Viewer")
                       : tr("%1[*] – %2 – Plate Viewer").arg(plate, QFileInfo(file_).fileName()));
}

void MainWindow::ShowSelection() {
    const auto selected = static_cast<int>(session_->SelectedWells().size());
    const auto current = session_->CurrentWell();
    const QString well =
        current ? QString::fromStdString(session_->Names().Full(*current)) : QString();
    const QString count =
        selected == 1 ? tr("1 well selected") : tr("%1 wells selected").arg(selected);
    selection_->setText(well.isEmpty() ? QString() : well + QStringLiteral("   ·   ") + count);
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

} // namespace zorvane
