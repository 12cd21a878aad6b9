#pragma once

#include "model/cmPlate.h"
#include "platecheck/FindingList.h"
#include "platetext/Keywords.h"

#include <map>
#include <vector>

namespace zorvane {

/// The lines of a plate that has been read.
struct PlateLines {
    SourceLine plate;
    std::map<Keyword, SourceLine> values; ///< those of the plate itself
    std::vector<SourceLine> subWells;     ///< the first line of each, in layout order

    /// The line that gives a value, otherwise that of the plate's name.
    const SourceLine& LineOf(Keyword keyword) const {
        const auto given = values.find(keyword);
        return given == values.end() ? plate : given->second;
    }
};

/// Finds what is wrong with a plate as a whole: with its grid, its labels and what it leaves out.
void CheckPlate(const cmPlate& plate, const PlateLines& lines, FindingList& findings);

} // namespace zorvane
