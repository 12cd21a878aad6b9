#include "apps/viewer/EditMode.h"
#include "apps/viewer/LibraryPanel.h"
#include "apps/viewer/MainWindow.h"
#include "apps/viewer/PlateSession.h"

#include <QAction>
#include <QCloseEvent>
#include <QDockWidget>
#include <QMenuBar>
#include <QSignalBlocker>
#include <QToolBar>

/// The part of the window that edits plate types.
namespace zorvane {

void MainWindow::MakeEditMenu() {
    QMenu& menu = *menuBar()->addMenu(tr("&Edit"));
    edit_ =
        menu.addAction(QIcon::fromTheme(QStringLiteral("document-edit")), tr("&Edit Plate Type"));
    edit_->setIconText(tr("Edit"));
    edit_->setCheckable(true);
    edit_->setShortcut(QKeySequence(tr("Ctrl+T")));
    connect(edit_, &QAction::toggled, this, &MainWindow::SwitchEditing);
    menu.addSeparator();
    undo_ = menu.addAction(QIcon::fromTheme(QStringLiteral("edit-undo")), tr("&Undo"), editing_,
                           &EditMode::Undo);
    undo_->setShortcut(QKeySequence(tr("Ctrl+Z")));
    redo_ = menu.addAction(QIcon::fromTheme(QStringLiteral("edit-redo")), tr("&Redo"), editing_,
                           &EditMode::Redo);
    redo_->setShortcuts({QKeySequence(tr("Ctrl+Shift+Z")), QKeySequence(tr("Ctrl+Y"))});
    menu.addSeparator();
    QAction* save = menu.addAction(QIcon::fromTheme(QStringLiteral("document-save")),
                                   tr("&Save to Library"), editing_, &EditMode::Save);
    save->setShortcut(QKeySequence::Save);
    QAction* saveAs = menu.addAction(QIcon::fromTheme(QStringLiteral("document-save-as")),
                                     tr("Save as &New Plate…"), editing_, &EditMode::SaveAs);
    saveAs->setShortcut(QKeySequence(tr("Ctrl+Shift+S")));

    needPlate_.push_back(edit_);
    needEditing_ = {save, saveAs};
    tools_->addAction(edit_);
    connect(editing_, &EditMode::changed, this, &MainWindow::ShowEditing);
    connect(editing_, &EditMode::libraryChanged, this, &MainWindow::ListAgain);
    connect(editing_, &EditMode::failed, this, &MainWindow::Warn);
    ShowEditing();
}

void MainWindow::SwitchEditing(bool on) {
    const QString plate = QString::fromStdString(session_->Control().PlateName());
    if (on) {
        if (!editing_->Start(file_, plate)) return edit_->setChecked(false);
        difference_->show();
        difference_->raise();
    } else if (!editing_->MayLeave()) {
        const QSignalBlocker quiet(edit_);
        edit_->setChecked(true);
    } else if (editing_->IsOn()) {
        editing_->Stop();
        session_->Open(file_, plate);
    }
    if (!editing_->IsOn()) difference_->hide();
    ShowEditing();
}

void MainWindow::ShowEditing() {
    undo_->setEnabled(editing_->CanUndo());
    redo_->setEnabled(editing_->CanRedo());
    for (QAction* action : needEditing_)
        action->setEnabled(editing_->IsOn());
    setWindowModified(editing_->HasUnsaved());
}

/// Shows what the library holds now, with the edited plate chosen.
void MainWindow::ListAgain(const QString& plate) {
    LibraryListing listing;
    if (!ReadListing(file_, listing)) return;
    library_->Show(listing);
    library_->SetChosen(plate);
}

void MainWindow::closeEvent(QCloseEvent* event) { event->setAccepted(editing_->MayLeave()); }

} // namespace zorvane
