#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

namespace zorvane {

/// Carries out a command of the panel's menu on the plate definition: asks the operator for what it
/// needs and keeps the page chooser in step where it can. Failures of the definition reach the
/// caller, with the changes made before them in place.
void RunSubWellCommand(ControlParts parts, SubWellCommand command);

} // namespace zorvane
