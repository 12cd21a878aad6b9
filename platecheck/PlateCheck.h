#pragma once

#include "model/cmPlate.h"
#include "platecheck/FindingList.h"

#include <map>
#include <string_view>
#include <vector>

namespace zorvane {

/// Where a plate that has been read says what.
struct PlateLines {
    SourceLine plate;
    std::map<std::string_view, SourceLine> values; ///< the plate's own keywords, in upper case
    std::vector<SourceLine> subWells;              ///< the first line of each, in layout order
};

/// Finds what is wrong with a plate as a whole: with its grid, its labels and what it leaves out.
void CheckPlate(const cmPlate& plate, const PlateLines& lines, FindingList& findings);

/// Finds wells that leave the plate or overlap; the grid must be sound.
void CheckWellPlaces(const cmPlate& plate, const PlateLines& lines, FindingList& findings);

} // namespace zorvane
