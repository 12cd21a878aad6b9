#pragma once

#include "formats/PlateSource.h"
#include "model/cmPlate.h"

namespace zorvane {

/// The wells of a plate as files list them, sub-well by sub-well and row by row. The places that
/// rims have of their own are part of X and Y. Error 5 for a plate whose positions have no names of
/// a letter and a number, and for values that no plate has.
SourcePlate PlateWells(const cmPlate& plate);

} // namespace zorvane
