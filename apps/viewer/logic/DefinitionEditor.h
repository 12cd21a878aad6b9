#pragma once

#include "library/DefinitionHistory.h"
#include "library/LibraryDocument.h"
#include "library/LineDifference.h"

#include <optional>
#include <vector>

namespace zorvane::viewer {

/// The definition of one plate of a library while it is edited in a control: what the control shows
/// goes in and out as text, and the library changes only when it is saved.
///
/// Failures are RuntimeErrors with a description for the operator, and leave everything as it was;
/// a save that finds the file changed raises ErrorNumber::ChangedOnDisk.
class DefinitionEditor {
  public:
    explicit DefinitionEditor(FileLayer& files) : files_(files) {}

    /// Begins to edit a plate. Text() is then what a control is to be given.
    void Begin(const String& library, const String& plate);
    void End() { document_.reset(); }
    bool IsOpen() const { return document_.has_value(); }

    const String& PlateName() const { return plate_; }
    /// The present definition, for a control that makes comments of the ends of lines again.
    String Text() const;
    /// Takes what the control gives as the definition; an edit unless it is the present one.
    void Take(const String& definition) { history_.Add(definition); }

    bool CanUndo() const { return history_.CanUndo(); }
    bool CanRedo() const { return history_.CanRedo(); }
    void Undo() { history_.Undo(); }
    void Redo() { history_.Redo(); }
    bool IsSaved() const { return history_.IsSaved(); }

    /// What saving the present definition changes in the library.
    std::vector<ChangedLine> Difference() const;

    /// Saves the present definition in place of the plate. Fails, as SaveAs does, when a line of it
    /// could not be read back.
    void Save();
    /// Saves it as another plate, which is the edited one from then on.
    void SaveAs(const String& name);
    /// Takes what the file holds now; the edits stay, to be saved into that.
    void Reload();

  private:
    const LibraryText& Library() const { return document_->Text(); }

    FileLayer& files_;
    std::optional<LibraryDocument> document_;
    String plate_;
    DefinitionHistory history_;
};

} // namespace zorvane::viewer
