#pragma once

#include "model/cmPlate.h"

namespace zorvane {

/// Records the values that moving, shifting and turning a plate change, for every sub-well that
/// does not record them yet, each among the properties of its own sub-well.
///
/// A value that such an operation records for the first time goes to the end of the list instead,
/// and would be read back as one of the last sub-well. Programs call this before they let a plate
/// be edited; what the plate shows does not change.
void RecordMissingValues(cmPlate& plate);

} // namespace zorvane
