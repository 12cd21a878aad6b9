#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// What the control keeps for every well number while a plate is shown. The values belong to the
/// host; nothing here is saved.
struct WellValues {
    Boolean Defined = false;  ///< a solution has been defined for this well
    Boolean Selected = false; ///< the well is selected
    Single Volume = 0;        ///< current volume
    String Text;              ///< free text of the well
    Integer ErrorCode = 0;
};

} // namespace zorvane
