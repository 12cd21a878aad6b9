#pragma once

#include "control/PlateTypes.h"
#include "runtime/Types.h"

#include <optional>
#include <vector>

namespace zorvane::viewer {

/// How an array fill walks a block of wells.
struct Walk {
    ArrayFillOrder order = foTopLeftHorizontal;
    int width = 1;
    int height = 1;

    /// The number, from 1, under which the walk reaches a place of the block (row and column from
    /// 0).
    int NumberAt(int row, int column) const;
};

/// Which of `count` rows or columns a picture with room for `room` of them shows: all, or the first
/// and the last ones around a gap, which is the empty value.
std::vector<std::optional<int>> ShownPlaces(int count, int room);

} // namespace zorvane::viewer
