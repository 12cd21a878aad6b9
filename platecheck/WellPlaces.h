#pragma once

#include "platecheck/PlateCheck.h"

namespace zorvane {

/// Finds wells that leave the plate or overlap; the grid must be sound.
void CheckWellPlaces(const cmPlate& plate, const PlateLines& lines, FindingList& findings);

} // namespace zorvane
