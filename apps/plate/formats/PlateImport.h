#pragma once

#include "runtime/Types.h"

#include <vector>

namespace zorvane {

/// Definitions for a plate library from files of labware, or one definition with a sub-well for
/// each of them where a name for it is given. A failure names the file.
String LibraryOfLabware(const std::vector<String>& files, const String& mergedName);

/// Definitions from tables of wells.
String LibraryOfTables(const std::vector<String>& files);

} // namespace zorvane
