#pragma once

#include "apps/plate/table/Table.h"
#include "model/cmPlate.h"

namespace zorvane {

/// The well positions of a plate, row by row: the centre of each over all its sub-wells, and its
/// box with the rims. Fails for a plate with more positions than can be numbered, and as the
/// members of the plate do.
Table PositionTable(const cmPlate& plate);

/// The wells of a plate in the order of their numbers, sub-well by sub-well: the centre and the
/// height of the bottom, which is the height of the plate less the depth, the size and the
/// capacity.
Table SubWellTable(const cmPlate& plate);

} // namespace zorvane
