#pragma once

#include <QObject>

#include <functional>

class QWidget;

namespace zorvane::viewer {

/// Leaves the keys for undo and redo to the window, which a field would take for its own text.
class UndoKeys final : public QObject {
    Q_OBJECT

  public:
    /// `leaves` says whether the keys are the window's at the moment.
    UndoKeys(QWidget& field, std::function<bool()> leaves);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    std::function<bool()> leaves_;
};

} // namespace zorvane::viewer
