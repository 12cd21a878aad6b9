#pragma once

#include "formats/PlateSource.h"

namespace zorvane {

/// The rows of a grid from the top, or its columns from the left.
struct GridLines {
    Long first = 0; ///< the lowest of their names
    Long count = 0;
    bool countsDown = false; ///< the first has the highest name
    ExactNumber offset;      ///< the centre of the first line
    ExactNumber pitch;

    /// Where the line of a name stands, from 0.
    Long PlaceOf(Long name) const { return countsDown ? first + count - 1 - name : name - first; }
    Long NameAt(Long place) const { return countsDown ? first + count - 1 - place : first + place; }
};

/// The regular grid that the wells of a sub-well are in.
struct PlateGrid {
    GridLines rows;
    GridLines cols;

    /// The refusals of DefinitionText.
    explicit PlateGrid(const std::vector<SourceWell>& wells);

    /// Refuses wells that are not where the offsets and pitches have them.
    void RequireRegular(const std::vector<SourceWell>& wells) const;
};

} // namespace zorvane
