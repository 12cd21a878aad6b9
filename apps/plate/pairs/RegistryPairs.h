#pragma once

#include "apps/plate/registry/RegistryPath.h"
#include "support/TStringPairList.h"

namespace zorvane {

/// Adds the pairs of a registry key to a list, which takes over their name. Warns the user when the
/// key lists fewer pairs than it counts, and fails when it lists none.
void AddPairs(TStringPairList& list, const RegistryPath& path);

/// Stores a list in a registry key. Fails when not all of it can be read back.
void StorePairs(const TStringPairList& list, const RegistryPath& path);

} // namespace zorvane
