#pragma once

#include "control/Plate.h"
#include "runtime/Export.h"

namespace zorvane {

// Where the legends of a control stand among its labels. Only for lines of the grid that exist, of
// a plate that has wells.

ZORVANE_EXPORT const Label& RowLegend(const Plate& plate, Integer row);
ZORVANE_EXPORT const Label& ColumnLegend(const Plate& plate, Integer col);

} // namespace zorvane
