#pragma once

#include "runtime/Checked.h"
#include "runtime/Types.h"

namespace zorvane {

/// Where a well stands: the sub-well's position from 1, row and column from 0.
struct WellPlace {
    Integer subWell = 0;
    Integer row = 0;
    Integer col = 0;
};

/// How the wells of a plate are numbered: from 0, sub-well by sub-well, row by row.
struct WellGrid {
    Integer rows = 0;
    Integer cols = 0;

    /// The number of a well, which need not exist; error 6 when it does not fit 16 bits.
    Integer NumberOf(const WellPlace& place) const {
        return (Checked(place.subWell) - 1) * rows * cols + Checked(place.row) * cols + place.col;
    }

    /// The place that a well number leads to; all 0 while there is no grid.
    WellPlace PlaceOf(Integer wellNo) const {
        if (rows < 1 || cols < 1) return {};
        const Checked line = Checked(wellNo) / cols;
        return {line / rows + 1, line % rows, Checked(wellNo) % cols};
    }
};

} // namespace zorvane
