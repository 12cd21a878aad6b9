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

/// "B3, Drop1", the legends of a well's position and its sub-well; the position alone where there
/// is one sub-well. For a number that is a well.
String NameOfWell(const Plate& plate, Integer wellNo);

} // namespace zorvane
