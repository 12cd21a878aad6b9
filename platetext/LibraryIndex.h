#pragma once

#include "platetext/ReadResult.h"
#include "runtime/Export.h"
#include "runtime/Types.h"

#include <vector>

namespace zorvane {

/// One plate definition of a library, as a look-up gives it: what its lines leave out, it keeps
/// from the plates before it.
struct LibraryEntry {
    String name;
    Long line = 0; ///< the number of its PLATE line, from 1
    Integer rows = 0;
    Integer cols = 0;
    Long subWells = 0;
    String tags;        ///< separated by single spaces
    bool found = false; ///< false when no look-up by name can give this plate
};

/// The plates of a library in file order, up to where a look-up by name stops reading.
struct LibraryListing {
    std::vector<LibraryEntry> plates;
    /// The number of the line that hides everything after it, and what cmPlate::ReadNextPlate
    /// returned for it; 0 and kPlateRead when the whole file was read.
    Long stoppedAtLine = 0;
    Integer code = kPlateRead;
};

/// Reads a library by the rules of the look-up. Errors of TextFile::OpenInput when the file cannot
/// be opened, and 75 for what is no ordinary file.
ZORVANE_EXPORT LibraryListing ListLibrary(const String& fileName);

/// The same for the text of a library.
ZORVANE_EXPORT LibraryListing ListLibraryText(const String& text);

} // namespace zorvane
