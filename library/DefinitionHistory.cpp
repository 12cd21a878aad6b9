#include "library/DefinitionHistory.h"

namespace zorvane {

void DefinitionHistory::Begin(const String& text) {
    texts_ = {text};
    at_ = 0;
    saved_ = 0;
}

void DefinitionHistory::Add(const String& text) {
    if (text == Present()) return;
    texts_.resize(at_ + 1);
    texts_.push_back(text);
    if (saved_ && *saved_ > at_) saved_.reset();
    ++at_;
}

void DefinitionHistory::Undo() {
    if (CanUndo()) --at_;
}

void DefinitionHistory::Redo() {
    if (CanRedo()) ++at_;
}

} // namespace zorvane
