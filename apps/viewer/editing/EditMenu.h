#pragma once

#include <QMenu>

namespace zorvane::viewer {

class EditMode;
class LibraryBrowser;

/// The menu that begins and ends the editing of plate types, and undoes, redoes and saves edits.
class EditMenu final : public QMenu {
    Q_OBJECT

  public:
    EditMenu(LibraryBrowser& library, EditMode& editing, QWidget* parent);

    /// Checked while a plate type is edited.
    QAction* Toggle() const { return toggle_; }

  private:
    void Refresh();

    EditMode& editing_;
    QAction* toggle_;
    QAction* undo_;
    QAction* redo_;
    QAction* save_;
    QAction* saveAs_;
};

} // namespace zorvane::viewer
