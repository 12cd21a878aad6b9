#pragma once

#include "control/Plate.h"
#include "runtime/Types.h"

namespace zorvane::viewer {

/// Moves everything that the selected wells hold by a number of columns and rows. The wells that it
/// leaves become empty, those that it reaches lose what they held. The selection moves along, and
/// so does the current well when it is selected. Returns false, with nothing changed, when a well
/// would leave the plate.
bool MoveSelectedWells(Plate& plate, Integer columns, Integer rows);

} // namespace zorvane::viewer
