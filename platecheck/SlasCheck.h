#pragma once

#include "model/cmPlate.h"
#include "platecheck/FindingList.h"
#include "platecheck/PlateCheck.h"

namespace zorvane {

/// Warns where a plate leaves the public standards of microplates: the footprint (ANSI SLAS
/// 1-2004), the height (ANSI SLAS 2-2004) and, with 96, 384 or 1536 positions, where the wells are
/// (ANSI SLAS 4-2004). A plate that stands upright is measured as it lies. Of several sub-wells,
/// one or the middle of the position has to be where a well should be.
void CheckSlas(const cmPlate& plate, const PlateLines& lines, FindingList& findings);

} // namespace zorvane
