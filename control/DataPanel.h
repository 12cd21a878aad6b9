#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

namespace zorvane {

/// Opens or closes the details panel and gives the control the size that goes with it.
void ShowDataPanel(ControlParts parts, Boolean visible);

} // namespace zorvane
