#pragma once

#include "apps/viewer/logic/WellSnapshot.h"

#include <map>
#include <vector>

namespace zorvane::viewer {

/// All wells of a plate at one moment.
struct PlateWells {
    std::vector<WellSnapshot> wells;
    Integer current = 0;
};

PlateWells CaptureAll(const Plate& plate);

/// What a change leads to, or back to: the wells that it touches, the selection, the current well.
struct WellState {
    std::map<Integer, WellSnapshot> wells;
    std::vector<Integer> selection;
    Integer current = 0;

    friend bool operator==(const WellState&, const WellState&) = default;
};

/// The difference between two moments of a plate with the same number of wells.
struct WellChange {
    WellState before;
    WellState after;

    WellChange(const PlateWells& then, const PlateWells& now);

    bool IsEmpty() const { return before.wells == after.wells; }
    /// Lets a change that came right after this one become part of it. Returns false, with nothing
    /// done, when it is one of other wells.
    bool Append(const WellChange& next);
};

} // namespace zorvane::viewer
