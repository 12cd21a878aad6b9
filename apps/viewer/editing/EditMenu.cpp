#include "apps/viewer/editing/EditMenu.h"

#include "apps/viewer/editing/EditMode.h"
#include "apps/viewer/window/LibraryBrowser.h"

namespace zorvane::viewer {

namespace {

QIcon Icon(const char* name) { return QIcon::fromTheme(QLatin1String(name)); }

} // namespace

EditMenu::EditMenu(LibraryBrowser& library, EditMode& editing, QWidget* parent)
    : QMenu(tr("&Edit"), parent), editing_(editing) {
    toggle_ = addAction(Icon("document-edit"), tr("&Edit Plate Type"));
    toggle_->setIconText(tr("Edit"));
    toggle_->setCheckable(true);
    toggle_->setShortcut(QKeyCombination(Qt::CTRL, Qt::Key_T));
    // A click has switched the mark already, whether editing could begin or end or not.
    connect(toggle_, &QAction::triggered, this, [this, &library](bool on) {
        library.SwitchEditing(on);
        Refresh();
    });
    addSeparator();
    undo_ =
        addAction(Icon("edit-undo"), tr("&Undo"), QKeySequence::Undo, &editing, &EditMode::Undo);
    redo_ = addAction(Icon("edit-redo"), tr("&Redo"), &editing, &EditMode::Redo);
    redo_->setShortcuts(
        {QKeyCombination({Qt::CTRL, Qt::SHIFT}, Qt::Key_Z), QKeyCombination(Qt::CTRL, Qt::Key_Y)});
    addSeparator();
    save_ = addAction(Icon("document-save"), tr("&Save to Library"), QKeySequence::Save, &editing,
                      &EditMode::Save);
    saveAs_ =
        addAction(Icon("document-save-as"), tr("Save as &New Plate…"),
                  QKeyCombination({Qt::CTRL, Qt::SHIFT}, Qt::Key_S), &editing, &EditMode::SaveAs);
    connect(&editing, &EditMode::changed, this, &EditMenu::Refresh);
    Refresh();
}

void EditMenu::Refresh() {
    toggle_->setChecked(editing_.IsOn());
    undo_->setEnabled(editing_.CanUndo());
    redo_->setEnabled(editing_.CanRedo());
    save_->setEnabled(editing_.IsOn());
    saveAs_->setEnabled(editing_.IsOn());
}

} // namespace zorvane::viewer
