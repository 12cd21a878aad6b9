#pragma once

#include "runtime/Types.h"

#include <QString>

namespace zorvane {

/// What the control itself shows or reports, in the language of the program: captions of the
/// details panel, entries of its menu, questions, messages and failures. Only to be looked at; what
/// goes back to the control are positions, and texts that the operator has typed. Lines end with a
/// line feed.
QString ControlText(const String& text);

} // namespace zorvane
