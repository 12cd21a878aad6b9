#pragma once

#include "platetext/LibraryIndex.h"
#include "runtime/Types.h"

#include <string_view>

namespace zorvane::viewer {

/// Whether a plate is found by what has been typed: each of its words must occur in the plate's
/// name or tags, in any letter case.
bool MatchesFilter(const LibraryEntry& plate, std::string_view typed);

/// The plate to show first, as its index: a crystallization plate with several sub-wells, else any
/// that is not the placeholder, else any; -1 when none can be shown.
int FirstPlate(const LibraryListing& library);

/// The plate of a name (case does not matter) as its index; without one that can be shown, the one
/// to show first.
int PlateOrFirst(const LibraryListing& library, std::string_view name);

} // namespace zorvane::viewer
