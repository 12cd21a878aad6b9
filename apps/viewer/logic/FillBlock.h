#pragma once

#include "control/Plate.h"

namespace zorvane::viewer {

/// A block of well positions, columns and rows counted from 0.
struct FillBlock {
    int x = 0;
    int y = 0;
    int width = 1;
    int height = 1;
};

/// The block to suggest for a fill: the one around the selected wells of the current sub-well, else
/// the current well.
FillBlock SuggestedBlock(const Plate& plate);

} // namespace zorvane::viewer
