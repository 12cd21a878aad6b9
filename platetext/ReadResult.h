#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// What cmPlate::ReadNextPlate returns. Any other number is the error number of a failure to read
/// the file.
enum ReadResult : Integer {
    kPlateRead = 0,
    kOtherPlateRead = 1,      ///< a plate that has another name than the one asked for
    kStoppedAtInclude = -1,   ///< INCLUDE outside a plate; it is the next line to be read
    kStoppedAtStrayLine = 6,  ///< any other text outside a plate; it has been read
    kStoppedAtFailedLine = 7, ///< a line that could not be applied; it has been read
};

} // namespace zorvane
