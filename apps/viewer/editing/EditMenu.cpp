#include "apps/viewer/editing/EditMenu.h"

#include "apps/viewer/WellHistory.h"
#include "apps/viewer/editing/EditMode.h"
#include "apps/viewer/window/LibraryBrowser.h"

namespace zorvane::viewer {

namespace {

QIcon Icon(const char* name) { return QIcon::fromTheme(QLatin1String(name)); }

} // namespace

EditMenu::EditMenu(LibraryBrowser& library, EditMode& editing, WellHistory& wells, QWidget* parent)
    : QMenu(tr("&Edit"), parent), editing_(editing), wells_(wells) {
    AddHistory();
    addSeparator();
    toggle_ = addAction(Icon("document-edit"), tr("&Edit Plate Type"));
    toggle_->setIconText(tr("Edit"));
    toggle_->setCheckable(true);
    toggle_->setShortcut(QKeyCombination(Qt::CTRL, Qt::Key_T));
    // A click has switched the mark already, whether editing could begin or end or not.
    connect(toggle_, &QAction::triggered, this, [this, &library](bool on) {
        library.SwitchEditing(on);
        Refresh();
    });
    save_ = addAction(Icon("document-save"), tr("&Save to Library"), QKeySequence::Save, &editing,
                      &EditMode::Save);
    saveAs_ =
        addAction(Icon("document-save-as"), tr("Save as &New Plate…"),
                  QKeyCombination({Qt::CTRL, Qt::SHIFT}, Qt::Key_S), &editing, &EditMode::SaveAs);
    connect(&editing, &EditMode::changed, this, &EditMenu::Refresh);
    connect(&wells, &WellHistory::changed, this, &EditMenu::Refresh);
    Refresh();
}

void EditMenu::AddHistory() {
    undo_ = addAction(Icon("edit-undo"), {}, this,
                      [this] { editing_.IsOn() ? editing_.Undo() : wells_.Undo(); });
    undo_->setObjectName(QStringLiteral("Undo"));
    undo_->setShortcut(QKeySequence::Undo);
    redo_ = addAction(Icon("edit-redo"), {}, this,
                      [this] { editing_.IsOn() ? editing_.Redo() : wells_.Redo(); });
    redo_->setObjectName(QStringLiteral("Redo"));
    redo_->setShortcuts(
        {QKeyCombination({Qt::CTRL, Qt::SHIFT}, Qt::Key_Z), QKeyCombination(Qt::CTRL, Qt::Key_Y)});
}

void EditMenu::Refresh() {
    toggle_->setChecked(editing_.IsOn());
    const bool types = editing_.IsOn();
    undo_->setEnabled(types ? editing_.CanUndo() : wells_.CanUndo());
    redo_->setEnabled(types ? editing_.CanRedo() : wells_.CanRedo());
    undo_->setText(types ? tr("&Undo") : tr("&Undo %1").arg(wells_.UndoName()).trimmed());
    redo_->setText(types ? tr("&Redo") : tr("&Redo %1").arg(wells_.RedoName()).trimmed());
    save_->setEnabled(editing_.IsOn());
    saveAs_->setEnabled(editing_.IsOn());
}

} // namespace zorvane::viewer
