#pragma once

#include "runtime/Types.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace zorvane {

/// The texts that a definition has had, for undoing and redoing its edits.
class DefinitionHistory {
  public:
    /// Starts over with a text, which is saved.
    void Begin(const String& text);
    /// Adds an edit after the present text, in place of what could be redone. The present text
    /// again is no edit.
    void Add(const String& text);
    void Undo();
    void Redo();
    /// The present text is what the library holds now.
    void SetSaved() { saved_ = at_; }
    /// No text is what the library holds.
    void ForgetSaved() { saved_.reset(); }

    const String& Present() const { return texts_[at_]; }
    bool CanUndo() const { return at_ > 0; }
    bool CanRedo() const { return at_ + 1 < texts_.size(); }
    bool IsSaved() const { return saved_ && texts_[*saved_] == Present(); }

  private:
    std::vector<String> texts_{String()};
    std::size_t at_ = 0;
    std::optional<std::size_t> saved_ = 0;
};

} // namespace zorvane
