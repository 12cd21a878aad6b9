#pragma once

#include "runtime/Types.h"

#include <QString>

namespace zorvane {

/// A text of the control as an operator reads it: in the language that the program has a
/// translation for. A text that is not the control's own, such as one of a plate's, stays as it is.
/// Nothing that was translated goes back to the control.
QString ControlText(const String& text);

} // namespace zorvane
