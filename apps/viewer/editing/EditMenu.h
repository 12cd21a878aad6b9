#pragma once

#include <QMenu>

namespace zorvane::viewer {

class EditMode;
class LibraryBrowser;
class WellHistory;

/// The menu that undoes and redoes, and begins, ends and saves the editing of plate types. While a
/// type is edited, undo and redo are those of the type, else those of the wells' data.
class EditMenu final : public QMenu {
    Q_OBJECT

  public:
    EditMenu(LibraryBrowser& library, EditMode& editing, WellHistory& wells, QWidget* parent);

    /// Checked while a plate type is edited.
    QAction* Toggle() const { return toggle_; }

  private:
    void AddHistory();
    void Refresh();

    EditMode& editing_;
    WellHistory& wells_;
    QAction* toggle_;
    QAction* undo_;
    QAction* redo_;
    QAction* save_;
    QAction* saveAs_;
};

} // namespace zorvane::viewer
