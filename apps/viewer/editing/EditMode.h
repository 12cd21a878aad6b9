#pragma once

#include "apps/viewer/editing/EditQuestions.h"
#include "apps/viewer/logic/DefinitionEditor.h"
#include "library/DiskFiles.h"

#include <QObject>
#include <QString>

#include <functional>

namespace zorvane {
class Plate;
}

namespace zorvane::viewer {

class DifferencePanel;
class PlateSession;

/// Editing the type of the plate that is shown: follows what the operator does in the plate's
/// details panel, and undoes, compares and saves it.
class EditMode final : public QObject {
    Q_OBJECT

  public:
    EditMode(PlateSession& session, DifferencePanel& panel, QWidget& window);

    bool IsOn() const { return editor_.IsOpen(); }
    bool CanUndo() const { return IsOn() && editor_.CanUndo(); }
    bool CanRedo() const { return IsOn() && editor_.CanRedo(); }
    bool HasUnsaved() const;

    /// Begins to edit the plate that is shown; emits failed() when it cannot be edited.
    bool Start(const QString& library, const QString& plate);
    /// Asks what is to become of unsaved edits. Returns false when they are to stay.
    bool MayLeave();
    /// Ends the editing. The control keeps the present definition until a plate is opened.
    void Stop();

    void Undo();
    void Redo();
    bool Save();
    bool SaveAs();

  signals:
    /// Editing has begun or ended.
    void switched(bool on);
    /// What can be undone, redone or saved may have changed.
    void changed();
    /// The library holds something else now; the edited plate has this name.
    void libraryChanged(const QString& plate);
    void failed(const QString& reason);

  private:
    Plate& Control() const;
    void Follow();
    void Apply();
    void ShowPresent();
    void OpenPanel();
    void Report(const RuntimeError& error);
    bool Saving(const std::function<void()>& save);
    bool Resolve(const RuntimeError& error);
    bool Reload();

    PlateSession& session_;
    DifferencePanel& panel_;
    EditQuestions questions_;
    DiskFiles files_;
    DefinitionEditor editor_{files_};
};

} // namespace zorvane::viewer
