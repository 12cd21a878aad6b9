#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// Gives an open file the owner, group, permissions and access list of another file. What cannot
/// be kept is narrowed: nobody gets a right that the other file did not give him. Returns false,
/// with errno set, where even that is not possible.
bool CopyRights(const String& from, int toFile);

} // namespace zorvane
