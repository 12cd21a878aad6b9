#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// What one line of a definition turned out to be.
enum class LineCode : Long {
    Empty = 0,          ///< blank or a comment
    Applied = 1,        ///< a keyword inside a plate, or the command that resets the reader
    PlateOpened = 2,    ///< PLATE outside a plate
    PlateComplete = 3,  ///< END, PLATE or INCLUDE inside a plate
    IncludeOutside = 4, ///< INCLUDE outside a plate
    UnknownKeyword = 5, ///< inside a plate; recorded and otherwise ignored
    StrayLine = 6,      ///< any other text outside a plate
    Failed = 7,         ///< applying the line failed
};

} // namespace zorvane
