#pragma once

#include "runtime/RuntimeError.h"

#include <QString>

namespace zorvane::viewer {

/// What a failure of the control, of a library or of a file with well data means, in the language
/// of the program.
QString ErrorText(const RuntimeError& error);

} // namespace zorvane::viewer
