#pragma once

#include <QDialog>
#include <QList>

class QAction;
class QFormLayout;

namespace zorvane::viewer {

/// Lists the keys: those of the menus, and those that the plate has as well.
class KeysDialog final : public QDialog {
    Q_OBJECT

  public:
    KeysDialog(const QList<QAction*>& menus, QWidget* parent);

  private:
    static void AddPlateKeys(QFormLayout& form);
};

} // namespace zorvane::viewer
