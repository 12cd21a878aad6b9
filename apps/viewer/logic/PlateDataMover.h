#pragma once

#include "control/Plate.h"
#include "runtime/Types.h"

namespace zorvane {

/// Moves everything that the selected wells hold by so many columns and rows; the wells left behind
/// become empty, those moved onto lose what they held. The selection moves along, and so does the
/// current well when it is selected. Tells false, with nothing changed, when a well would leave the
/// plate.
bool MoveSelectedWells(Plate& plate, Integer columns, Integer rows);

} // namespace zorvane
