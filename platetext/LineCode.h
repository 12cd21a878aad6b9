#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// What one line of a definition turned out to be.
enum LineCode : Long {
    kNothing = 0,        ///< blank or a comment
    kApplied = 1,        ///< a keyword inside a plate, or the command that resets the reader
    kPlateOpened = 2,    ///< PLATE outside a plate
    kPlateComplete = 3,  ///< END, PLATE or INCLUDE inside a plate
    kIncludeOutside = 4, ///< INCLUDE outside a plate
    kUnknownKeyword = 5, ///< inside a plate; recorded and otherwise ignored
    kStrayLine = 6,      ///< any other text outside a plate
    kFailed = 7,         ///< handling the line failed
};

} // namespace zorvane
