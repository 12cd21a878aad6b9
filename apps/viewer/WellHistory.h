#pragma once

#include "apps/viewer/logic/WellChange.h"

#include <QObject>
#include <QString>
#include <QUndoGroup>
#include <QUndoStack>

#include <functional>
#include <map>
#include <utility>

namespace zorvane::viewer {

/// What can be undone and redone of the data of wells, for each plate of a library.
class WellHistory final : public QObject {
    Q_OBJECT

  public:
    using Show = std::function<void(const WellState&)>;

    /// Undoing and redoing hand a state of the plate that is shown to a function.
    explicit WellHistory(Show show);
    ~WellHistory() override;

    /// Another plate is shown. Its history is kept as long as it has as many wells as before.
    void SwitchTo(const QString& plate, Integer wells);
    /// Forgets all plates.
    void Clear();

    /// Adds what has been done to the plate that is shown. Changes of one field follow one another
    /// into a single step; without a field, each is one.
    void Add(const QString& name, WellChange change, const QObject* field);
    /// What is done to a field from now on is another step.
    void EndStep() { ++period_; }

    bool CanUndo() const { return stacks_.canUndo(); }
    bool CanRedo() const { return stacks_.canRedo(); }
    /// What undoing and redoing would undo and redo; empty when there is nothing.
    QString UndoName() const { return stacks_.undoText(); }
    QString RedoName() const { return stacks_.redoText(); }
    void Undo();
    void Redo();

  signals:
    /// What can be undone or redone may be something else.
    void changed();

  private:
    struct Stack {
        QUndoStack steps;
        Integer wells = 0;
    };

    Show show_;
    QUndoGroup stacks_;
    std::map<QString, Stack> plates_;
    int period_ = 0;
    const QObject* lastField_ = nullptr;
};

} // namespace zorvane::viewer
