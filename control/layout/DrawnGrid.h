#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// Where the last layout drew the grid of well positions, in drawing units of the plate area.
struct DrawnGrid {
    Integer left = 0; ///< centre of column 0 of the last sub-well
    Integer top = 0;  ///< centre of row 0 of the last sub-well
    Integer columnPitch = 0;
    Integer rowPitch = 0;
    Single pixelWidth = 0; ///< one screen pixel
    Single pixelHeight = 0;
};

} // namespace zorvane
