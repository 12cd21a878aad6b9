#pragma once

#include "control/ControlParts.h"
#include "runtime/Types.h"

namespace zorvane {

/// Ends the selection of an area: from the current well, the pressed one, so many columns and rows
/// away, cut to the grid. Records the block, adds its wells to the selection and raises the event.
void SelectArea(ControlParts parts, Integer columns, Integer rows);

} // namespace zorvane
