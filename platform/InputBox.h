#pragma once

#include "runtime/Export.h"
#include "runtime/Types.h"

namespace zorvane {

/// One question for a line of text. Lives for the duration of the call that asks it.
struct Question {
    String prompt; ///< may hold CR LF line breaks
    String title;
    String preset; ///< the text that the box shows initially
};

/// Asks the operator for a line of text.
class ZORVANE_EXPORT InputBox {
  public:
    virtual ~InputBox() = default;

    /// Called when a command needs a text. Returns what was typed, or empty text when cancelled,
    /// which is also what a host without an operator answers.
    virtual String Ask(const Question& /*question*/) { return {}; }
};

} // namespace zorvane
