#pragma once

#include "control/LegendLabels.h"

#include <optional>

namespace zorvane {

/// A whole row or a whole column of the grid, counted from 0.
struct GridLine {
    bool isRow;
    Integer number;
};

/// The line whose legend is shown at a place of the plate area, in drawing units.
std::optional<GridLine> LegendAt(const Plate& plate, Single x, Single y);

} // namespace zorvane
