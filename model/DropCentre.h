#pragma once

#include "model/cmPlate.h"
#include "runtime/Export.h"

namespace zorvane {

/// Where the middle of a sub-well's bottom lies at a position, in millimetres from the plate's top
/// left corner, and Z upwards from its underside: the plate's height less the sub-well's depth. Row
/// and column count from 0 and need not exist.
ZORVANE_EXPORT Coordinate DropCentre(const cmPlate& plate, const WellDetails& subWell, Integer row,
                                     Integer col);

} // namespace zorvane
