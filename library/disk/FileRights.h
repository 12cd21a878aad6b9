#pragma once

#include "runtime/Types.h"

namespace zorvane {

/// Gives an open file the owner, group, permissions, access list and extended attributes of another
/// file. Raises 75 with the reason in words where one of them cannot be kept.
void CopyRights(const String& from, int toFile);

} // namespace zorvane
